<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutView</name>
    <message>
        <source>About Dashtrack</source>
        <translation>关于 Dashtrack</translation>
    </message>
    <message>
        <source>Dashtrack icon</source>
        <translation>Dashtrack 图标</translation>
    </message>
    <message>
        <source>Application name</source>
        <translation>应用程序名称</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Plays dash camera movies with the speed, position, date and time they recorded.</source>
        <translation>播放行车记录仪视频，并显示录制时的车速、位置、日期和时间。</translation>
    </message>
    <message>
        <source>What Dashtrack does</source>
        <translation>Dashtrack 的用途</translation>
    </message>
    <message>
        <source>Qt: LGPL 3
libmpv, FFmpeg and libplist: LGPL 2.1 or later
LED font made from DSEG: SIL Open Font License 1.1
Map data © OpenStreetMap contributors, ODbL</source>
        <translation>Qt：LGPL 3
libmpv、FFmpeg 和 libplist：LGPL 2.1 或更高版本
基于 DSEG 制作的 LED 字体：SIL Open Font License 1.1
地图数据 © OpenStreetMap 贡献者，ODbL</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close About</source>
        <translation>关闭“关于”</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
</context>
<context>
    <name>CarMarkerView</name>
    <message>
        <source>Car</source>
        <translation>车辆</translation>
    </message>
    <message>
        <source>Heading %1°</source>
        <translation>行驶方向 %1°</translation>
    </message>
</context>
<context>
    <name>ExportTrack</name>
    <message>
        <source>Export Track</source>
        <translation>导出轨迹</translation>
    </message>
    <message>
        <source>Exporting the track to %1…</source>
        <translation>正在将轨迹导出到 %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>导出进度</translation>
    </message>
    <message>
        <source>The track could not be written to %1: %2.</source>
        <translation>无法将轨迹写入 %1：%2。</translation>
    </message>
</context>
<context>
    <name>GPSControlView</name>
    <message>
        <source>Player controls</source>
        <translation>播放器控件</translation>
    </message>
</context>
<context>
    <name>GPSTableHeaderView</name>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>时间轴</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>播放位置</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>已播放时间和总时长</translation>
    </message>
    <message>
        <source>0:00 / 0:00</source>
        <translation>0:00 / 0:00</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一个</translation>
    </message>
    <message>
        <source>Previous movie (Ctrl+Left)</source>
        <translation>上一个视频 (Ctrl+Left)</translation>
    </message>
    <message>
        <source>Back 10 seconds</source>
        <translation>后退 10 秒</translation>
    </message>
    <message>
        <source>Back 10 seconds (Left)</source>
        <translation>后退 10 秒 (Left)</translation>
    </message>
    <message>
        <source>-10 s</source>
        <translation>-10 秒</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>播放 (Space)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>暂停 (Space)</translation>
    </message>
    <message>
        <source>Forward 10 seconds</source>
        <translation>前进 10 秒</translation>
    </message>
    <message>
        <source>Forward 10 seconds (Right)</source>
        <translation>前进 10 秒 (Right)</translation>
    </message>
    <message>
        <source>+10 s</source>
        <translation>+10 秒</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一个</translation>
    </message>
    <message>
        <source>Next movie (Ctrl+Right)</source>
        <translation>下一个视频 (Ctrl+Right)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop (Ctrl+Backspace)</source>
        <translation>停止 (Ctrl+Backspace)</translation>
    </message>
    <message>
        <source>Save snapshot</source>
        <translation>保存截图</translation>
    </message>
    <message>
        <source>Save the picture as a PNG file</source>
        <translation>将画面保存为 PNG 文件</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>截图</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Full screen (Ctrl+F)</source>
        <translation>全屏 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Muted: click for sound</source>
        <translation>已静音：点击恢复声音</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>已静音</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>声音已开启</translation>
    </message>
    <message>
        <source>Sound on: click to mute</source>
        <translation>声音已开启：点击静音</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Volume (Up, Down)</source>
        <translation>音量 (Up, Down)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>车速</translation>
    </message>
    <message>
        <source>00.00</source>
        <translation>00.00</translation>
    </message>
    <message>
        <source>Speed unit</source>
        <translation>速度单位</translation>
    </message>
    <message>
        <source>LAT</source>
        <translation>纬度</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>纬度</translation>
    </message>
    <message>
        <source>00.00000</source>
        <translation>00.00000</translation>
    </message>
    <message>
        <source>LON</source>
        <translation>经度</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>经度</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>00/00/00</source>
        <translation>00/00/00</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>00:00:00</source>
        <translation>00:00:00</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>播放列表</translation>
    </message>
    <message>
        <source>Trip</source>
        <translation>行程</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>播放(&amp;P)</translation>
    </message>
    <message>
        <source>Playback &amp;Rate</source>
        <translation>播放速度(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>单位(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>地图(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>&amp;Remove from Playlist</source>
        <translation>从播放列表中移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save Snapshot…</source>
        <translation>保存截图(&amp;S)…</translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>首选项(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Play/Pause	Space</source>
        <translation>播放/暂停(&amp;P)	Space</translation>
    </message>
    <message>
        <source>&amp;Stop	Ctrl+Backspace</source>
        <translation>停止(&amp;S)	Ctrl+Backspace</translation>
    </message>
    <message>
        <source>&amp;Back 10 Seconds	Left</source>
        <translation>后退 10 秒(&amp;B)	Left</translation>
    </message>
    <message>
        <source>&amp;Forward 10 Seconds	Right</source>
        <translation>前进 10 秒(&amp;F)	Right</translation>
    </message>
    <message>
        <source>Pre&amp;vious Movie	Ctrl+Left</source>
        <translation>上一个视频(&amp;V)	Ctrl+Left</translation>
    </message>
    <message>
        <source>&amp;Next Movie	Ctrl+Right</source>
        <translation>下一个视频(&amp;N)	Ctrl+Right</translation>
    </message>
    <message>
        <source>Fast F&amp;orward	Ctrl+Up</source>
        <translation>快进(&amp;O)	Ctrl+Up</translation>
    </message>
    <message>
        <source>Fast Bac&amp;kward	Ctrl+Down</source>
        <translation>快退(&amp;K)	Ctrl+Down</translation>
    </message>
    <message>
        <source>Volume &amp;Up	Up</source>
        <translation>增大音量(&amp;U)	Up</translation>
    </message>
    <message>
        <source>Volume &amp;Down	Down</source>
        <translation>减小音量(&amp;D)	Down</translation>
    </message>
    <message>
        <source>&amp;Copy Position</source>
        <translation>复制位置(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>&amp;Open Position in Browser</source>
        <translation>在浏览器中打开位置(&amp;O)</translation>
    </message>
    <message>
        <source>Previous &amp;Frame	,</source>
        <translation>上一帧(&amp;F)	,</translation>
    </message>
    <message>
        <source>Next F&amp;rame	.</source>
        <translation>下一帧(&amp;R)	.</translation>
    </message>
    <message>
        <source>0.25×</source>
        <translation>0.25×</translation>
    </message>
    <message>
        <source>0.5×</source>
        <translation>0.5×</translation>
    </message>
    <message>
        <source>1× (Normal)</source>
        <translation>1×（正常）</translation>
    </message>
    <message>
        <source>2×</source>
        <translation>2×</translation>
    </message>
    <message>
        <source>4×</source>
        <translation>4×</translation>
    </message>
    <message>
        <source>8×</source>
        <translation>8×</translation>
    </message>
    <message>
        <source>Play Clips &amp;Continuously</source>
        <translation>连续播放片段(&amp;C)</translation>
    </message>
    <message>
        <source>F&amp;ull Screen	Ctrl+F</source>
        <translation>全屏(&amp;U)	Ctrl+F</translation>
    </message>
    <message>
        <source>OpenStreetMap</source>
        <translation>OpenStreetMap</translation>
    </message>
    <message>
        <source>Open MBTiles File…</source>
        <translation>打开 MBTiles 文件…</translation>
    </message>
    <message>
        <source>Open Tile Folder…</source>
        <translation>打开瓦片文件夹…</translation>
    </message>
    <message>
        <source>Work Offline</source>
        <translation>离线工作</translation>
    </message>
    <message>
        <source>Baidu</source>
        <translation>百度地图</translation>
    </message>
    <message>
        <source>Google</source>
        <translation>谷歌地图</translation>
    </message>
    <message>
        <source>&amp;About Dashtrack</source>
        <translation>关于 Dashtrack(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Export Track</source>
        <translation>导出轨迹(&amp;E)</translation>
    </message>
    <message>
        <source>Loaded &amp;Clip…</source>
        <translation>当前片段(&amp;C)…</translation>
    </message>
    <message>
        <source>Selected &amp;Trip…</source>
        <translation>所选行程(&amp;T)…</translation>
    </message>
    <message>
        <source>Whole &amp;Playlist…</source>
        <translation>整个播放列表(&amp;P)…</translation>
    </message>
    <message>
        <source>Save Se&amp;gment…</source>
        <translation>保存选段(&amp;G)…</translation>
    </message>
    <message>
        <source>Mark &amp;Start	I</source>
        <translation>标记起点(&amp;S)	I</translation>
    </message>
    <message>
        <source>Mark &amp;End	O</source>
        <translation>标记终点(&amp;E)	O</translation>
    </message>
    <message>
        <source>C&amp;lear Marks</source>
        <translation>清除标记(&amp;L)</translation>
    </message>
</context>
<context>
    <name>MainWindowDelegate</name>
    <message>
        <source>Open Tile Folder</source>
        <translation>打开瓦片文件夹</translation>
    </message>
    <message>
        <source>Open MBTiles File</source>
        <translation>打开 MBTiles 文件</translation>
    </message>
    <message>
        <source>MBTiles files (*.mbtiles)</source>
        <translation>MBTiles 文件 (*.mbtiles)</translation>
    </message>
    <message>
        <source>Looking for movies…</source>
        <translation>正在查找视频…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Opening movies</source>
        <translation>正在打开视频</translation>
    </message>
    <message>
        <source>Open movie file</source>
        <translation>打开视频文件</translation>
    </message>
    <message>
        <source>Movies (%1)</source>
        <translation>视频 (%1)</translation>
    </message>
    <message>
        <source>Not a movie any more</source>
        <translation>已不再是视频文件</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>找不到文件</translation>
    </message>
    <message>
        <source>no GPS</source>
        <translation>无 GPS</translation>
    </message>
</context>
<context>
    <name>MapView</name>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Centre on car</source>
        <translation>以车辆为中心</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
</context>
<context>
    <name>PlaylistTableModel</name>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Read-outs</source>
        <translation>读数</translation>
    </message>
    <message>
        <source>Speed unit:</source>
        <translation>速度单位：</translation>
    </message>
    <message>
        <source>Kilometres per hour</source>
        <translation>公里每小时</translation>
    </message>
    <message>
        <source>Miles per hour</source>
        <translation>英里每小时</translation>
    </message>
    <message>
        <source>Clock correction:</source>
        <translation>时钟校正：</translation>
    </message>
    <message>
        <source>Clock correction</source>
        <translation>时钟校正</translation>
    </message>
    <message>
        <source>Hours and minutes added to the times the camera recorded, from -23:59 to +23:59</source>
        <translation>加到摄像头所记录时间上的时和分，范围 -23:59 至 +23:59</translation>
    </message>
    <message>
        <source>Clock correction problem</source>
        <translation>时钟校正有误</translation>
    </message>
    <message>
        <source>Added to the camera&apos;s dates and times, for a camera set to the wrong zone.</source>
        <translation>加到摄像头记录的日期和时间上，用于时区设置有误的摄像头。</translation>
    </message>
    <message>
        <source>About the clock correction</source>
        <translation>关于时钟校正</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Tile source:</source>
        <translation>瓦片来源：</translation>
    </message>
    <message>
        <source>Tile source</source>
        <translation>瓦片来源</translation>
    </message>
    <message>
        <source>MBTiles File…</source>
        <translation>MBTiles 文件…</translation>
    </message>
    <message>
        <source>Tile Folder…</source>
        <translation>瓦片文件夹…</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>自定义 URL</translation>
    </message>
    <message>
        <source>Work Offline</source>
        <translation>离线工作</translation>
    </message>
    <message>
        <source>Tile file or folder in use</source>
        <translation>正在使用的瓦片文件或文件夹</translation>
    </message>
    <message>
        <source>Custom URL:</source>
        <translation>自定义 URL：</translation>
    </message>
    <message>
        <source>Custom tile URL</source>
        <translation>自定义瓦片 URL</translation>
    </message>
    <message>
        <source>An http or https address with {z}, {x} and {y} where the tile&apos;s numbers go</source>
        <translation>http 或 https 地址，在瓦片编号处写 {z}、{x} 和 {y}</translation>
    </message>
    <message>
        <source>Custom tile URL problem</source>
        <translation>自定义瓦片 URL 有误</translation>
    </message>
    <message>
        <source>Tile cache:</source>
        <translation>瓦片缓存：</translation>
    </message>
    <message>
        <source>Tile cache size</source>
        <translation>瓦片缓存大小</translation>
    </message>
    <message>
        <source>Megabytes of downloaded tiles kept on the disk, from 10 to 2000</source>
        <translation>在磁盘上保留的已下载瓦片大小（MB），范围 10 至 2000</translation>
    </message>
    <message>
        <source>Clear Cache</source>
        <translation>清除缓存</translation>
    </message>
    <message>
        <source>Clear tile cache</source>
        <translation>清除瓦片缓存</translation>
    </message>
    <message>
        <source>Tile cache problem</source>
        <translation>瓦片缓存有误</translation>
    </message>
    <message>
        <source>Tile cache status</source>
        <translation>瓦片缓存状态</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Play clips continuously</source>
        <translation>连续播放片段</translation>
    </message>
    <message>
        <source>Video renderer:</source>
        <translation>视频渲染器：</translation>
    </message>
    <message>
        <source>Video renderer</source>
        <translation>视频渲染器</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>软件</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>下次启动时生效。</translation>
    </message>
    <message>
        <source>About the video renderer</source>
        <translation>关于视频渲染器</translation>
    </message>
    <message>
        <source>Dialog buttons</source>
        <translation>对话框按钮</translation>
    </message>
    <message>
        <source>DASHTRACK_VIDEO_RENDERER overrides this.</source>
        <translation>以 DASHTRACK_VIDEO_RENDERER 的设置为准。</translation>
    </message>
    <message>
        <source>Clearing…</source>
        <translation>正在清除…</translation>
    </message>
    <message>
        <source>Enter the address of the tile server.</source>
        <translation>请输入瓦片服务器的地址。</translation>
    </message>
    <message>
        <source>The address must start with http:// or https://.</source>
        <translation>地址必须以 http:// 或 https:// 开头。</translation>
    </message>
    <message>
        <source>The address needs {z}, {x} and {y}.</source>
        <translation>地址中须含有 {z}、{x} 和 {y}。</translation>
    </message>
    <message>
        <source>This is not a valid address.</source>
        <translation>这不是有效的地址。</translation>
    </message>
    <message>
        <source>From %1 to %2 MB.</source>
        <translation>范围为 %1 至 %2 MB。</translation>
    </message>
    <message>
        <source>Use ±HH:MM, from -23:59 to +23:59.</source>
        <translation>请使用 ±HH:MM 格式，范围 -23:59 至 +23:59。</translation>
    </message>
    <message>
        <source>Cache cleared.</source>
        <translation>缓存已清除。</translation>
    </message>
    <message>
        <source>Some files could not be removed.</source>
        <translation>部分文件无法删除。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>RouteTracker</name>
    <message>
        <source>Car</source>
        <translation>车辆</translation>
    </message>
</context>
<context>
    <name>SaveSegment</name>
    <message>
        <source>Save Segment</source>
        <translation>保存选段</translation>
    </message>
    <message>
        <source>MPEG-4 movie (*.mp4)</source>
        <translation>MPEG-4 视频 (*.mp4)</translation>
    </message>
    <message>
        <source>QuickTime movie (*.mov)</source>
        <translation>QuickTime 视频 (*.mov)</translation>
    </message>
    <message>
        <source>Saving the segment…</source>
        <translation>正在保存选段…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Saving the segment</source>
        <translation>正在保存选段</translation>
    </message>
    <message>
        <source>The segment was not saved.</source>
        <translation>选段未能保存。</translation>
    </message>
</context>
<context>
    <name>SnapshotSaveDialog</name>
    <message>
        <source>Save Snapshot</source>
        <translation>保存截图</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>PNG 图像 (*.png)</translation>
    </message>
    <message>
        <source>Stamp speed, place and time</source>
        <translation>在图片上印上车速、位置和时间</translation>
    </message>
    <message>
        <source>Draws the speed, latitude, longitude, date and time across the bottom of the saved picture</source>
        <translation>在保存的图片底部印上车速、纬度、经度、日期和时间</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>No GPS</source>
        <translation>无 GPS</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>时间轴</translation>
    </message>
    <message>
        <source>no GPS</source>
        <translation>无 GPS</translation>
    </message>
    <message>
        <source>No speed recorded over %1</source>
        <translation>%1 内无速度记录</translation>
    </message>
    <message>
        <source>Speed over %1, highest %2 at %3</source>
        <translation>%1 内的车速，%3 时最高，为 %2</translation>
    </message>
    <message>
        <source>; marked %1 to %2</source>
        <translation>；已标记 %1 至 %2</translation>
    </message>
    <message>
        <source>; marked from %1</source>
        <translation>；已标记起点 %1</translation>
    </message>
    <message>
        <source>; marked up to %1</source>
        <translation>；已标记终点 %1</translation>
    </message>
</context>
<context>
    <name>TitleBarButton</name>
    <message>
        <source>Close window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Minimise window</source>
        <translation>最小化窗口</translation>
    </message>
    <message>
        <source>Maximise window</source>
        <translation>最大化窗口</translation>
    </message>
    <message>
        <source>Restore window</source>
        <translation>还原窗口</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
</context>
<context>
    <name>TripText</name>
    <message>
        <source>Trip %1 of %2</source>
        <translation>行程 %1/%2</translation>
    </message>
    <message>
        <source>Trip %1 of %2: %3, from %4, %5, %6</source>
        <translation>行程 %1/%2：%3，%4 出发，%5，%6</translation>
    </message>
    <message>
        <source>Trip %1 of %2: %3, %4, %5</source>
        <translation>行程 %1/%2：%3，%4，%5</translation>
    </message>
    <message>
        <source>%1 clip</source>
        <translation>%1 个片段</translation>
    </message>
    <message>
        <source>%1 clips</source>
        <translation>%1 个片段</translation>
    </message>
</context>
<context>
    <name>WindowTitleBar</name>
    <message>
        <source>Title bar</source>
        <translation>标题栏</translation>
    </message>
    <message>
        <source>Window title</source>
        <translation>窗口标题</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Plays dash camera movies with their GPS tracks.</source>
        <translation>播放行车记录仪视频及其 GPS 轨迹。</translation>
    </message>
    <message>
        <source>movies</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Movie files or folders of movies.</source>
        <translation>视频文件或存放视频的文件夹。</translation>
    </message>
    <message>
        <source>Quit once a movie has played to its end.</source>
        <translation>视频播放完毕后退出。</translation>
    </message>
    <message>
        <source>Quit once the first movie&apos;s first frame is on screen (for timing launches).</source>
        <translation>第一个视频的第一帧显示后退出（用于测量启动时间）。</translation>
    </message>
</context>
</TS>
