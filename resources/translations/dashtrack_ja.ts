<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>AboutView</name>
    <message>
        <source>About Dashtrack</source>
        <translation>Dashtrack について</translation>
    </message>
    <message>
        <source>Dashtrack icon</source>
        <translation>Dashtrack のアイコン</translation>
    </message>
    <message>
        <source>Application name</source>
        <translation>アプリケーション名</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Plays dash camera movies with the speed, position, date and time they recorded.</source>
        <translation>ドライブレコーダーの動画を、記録された速度・位置・日付・時刻とともに再生します。</translation>
    </message>
    <message>
        <source>What Dashtrack does</source>
        <translation>Dashtrack の機能</translation>
    </message>
    <message>
        <source>Qt: LGPL 3
libmpv, FFmpeg and libplist: LGPL 2.1 or later
LED font made from DSEG: SIL Open Font License 1.1
Map data © OpenStreetMap contributors, ODbL</source>
        <translation>Qt：LGPL 3
libmpv、FFmpeg、libplist：LGPL 2.1 以降
DSEG を元にした LED フォント：SIL Open Font License 1.1
地図データ © OpenStreetMap 貢献者、ODbL</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close About</source>
        <translation>「Dashtrack について」を閉じる</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
</context>
<context>
    <name>CarMarkerView</name>
    <message>
        <source>Car</source>
        <translation>車</translation>
    </message>
    <message>
        <source>Heading %1°</source>
        <translation>進行方向 %1°</translation>
    </message>
</context>
<context>
    <name>ExportTrack</name>
    <message>
        <source>Export Track</source>
        <translation>走行軌跡のエクスポート</translation>
    </message>
    <message>
        <source>Exporting the track to %1…</source>
        <translation>走行軌跡を %1 にエクスポートしています…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>エクスポートの進行状況</translation>
    </message>
    <message>
        <source>The track could not be written to %1: %2.</source>
        <translation>走行軌跡を %1 に書き込めませんでした：%2。</translation>
    </message>
</context>
<context>
    <name>GPSControlView</name>
    <message>
        <source>Player controls</source>
        <translation>プレーヤーの操作</translation>
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
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>タイムライン</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>再生位置</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>経過時間と合計時間</translation>
    </message>
    <message>
        <source>0:00 / 0:00</source>
        <translation>0:00 / 0:00</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Previous movie (Ctrl+Left)</source>
        <translation>前の動画 (Ctrl+Left)</translation>
    </message>
    <message>
        <source>Back 10 seconds</source>
        <translation>10 秒戻る</translation>
    </message>
    <message>
        <source>Back 10 seconds (Left)</source>
        <translation>10 秒戻る (Left)</translation>
    </message>
    <message>
        <source>-10 s</source>
        <translation>-10 秒</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>再生 (Space)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>一時停止 (Space)</translation>
    </message>
    <message>
        <source>Forward 10 seconds</source>
        <translation>10 秒進む</translation>
    </message>
    <message>
        <source>Forward 10 seconds (Right)</source>
        <translation>10 秒進む (Right)</translation>
    </message>
    <message>
        <source>+10 s</source>
        <translation>+10 秒</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Next movie (Ctrl+Right)</source>
        <translation>次の動画 (Ctrl+Right)</translation>
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
        <translation>スナップショットを保存</translation>
    </message>
    <message>
        <source>Save the picture as a PNG file</source>
        <translation>画面を PNG ファイルとして保存</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全画面表示</translation>
    </message>
    <message>
        <source>Full screen (Ctrl+F)</source>
        <translation>全画面表示 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>消音</translation>
    </message>
    <message>
        <source>Muted: click for sound</source>
        <translation>消音中：クリックで音を出す</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>消音中</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>音声オン</translation>
    </message>
    <message>
        <source>Sound on: click to mute</source>
        <translation>音声オン：クリックで消音</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音声</translation>
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
        <translation>速度</translation>
    </message>
    <message>
        <source>00.00</source>
        <translation>00.00</translation>
    </message>
    <message>
        <source>Speed unit</source>
        <translation>速度の単位</translation>
    </message>
    <message>
        <source>LAT</source>
        <translation>緯度</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>緯度</translation>
    </message>
    <message>
        <source>00.00000</source>
        <translation>00.00000</translation>
    </message>
    <message>
        <source>LON</source>
        <translation>経度</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>経度</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>00/00/00</source>
        <translation>00/00/00</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>00:00:00</source>
        <translation>00:00:00</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地図</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>プレイリスト</translation>
    </message>
    <message>
        <source>Trip</source>
        <translation>トリップ</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>再生(&amp;P)</translation>
    </message>
    <message>
        <source>Playback &amp;Rate</source>
        <translation>再生速度(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>単位(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>地図(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>&amp;Remove from Playlist</source>
        <translation>プレイリストから削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save Snapshot…</source>
        <translation>スナップショットを保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>環境設定(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Play/Pause	Space</source>
        <translation>再生/一時停止(&amp;P)	Space</translation>
    </message>
    <message>
        <source>&amp;Stop	Ctrl+Backspace</source>
        <translation>停止(&amp;S)	Ctrl+Backspace</translation>
    </message>
    <message>
        <source>&amp;Back 10 Seconds	Left</source>
        <translation>10 秒戻る(&amp;B)	Left</translation>
    </message>
    <message>
        <source>&amp;Forward 10 Seconds	Right</source>
        <translation>10 秒進む(&amp;F)	Right</translation>
    </message>
    <message>
        <source>Pre&amp;vious Movie	Ctrl+Left</source>
        <translation>前の動画(&amp;V)	Ctrl+Left</translation>
    </message>
    <message>
        <source>&amp;Next Movie	Ctrl+Right</source>
        <translation>次の動画(&amp;N)	Ctrl+Right</translation>
    </message>
    <message>
        <source>Fast F&amp;orward	Ctrl+Up</source>
        <translation>早送り(&amp;O)	Ctrl+Up</translation>
    </message>
    <message>
        <source>Fast Bac&amp;kward	Ctrl+Down</source>
        <translation>早戻し(&amp;K)	Ctrl+Down</translation>
    </message>
    <message>
        <source>Volume &amp;Up	Up</source>
        <translation>音量を上げる(&amp;U)	Up</translation>
    </message>
    <message>
        <source>Volume &amp;Down	Down</source>
        <translation>音量を下げる(&amp;D)	Down</translation>
    </message>
    <message>
        <source>&amp;Copy Position</source>
        <translation>位置をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>&amp;Open Position in Browser</source>
        <translation>位置をブラウザーで開く(&amp;O)</translation>
    </message>
    <message>
        <source>Previous &amp;Frame	,</source>
        <translation>前のフレーム(&amp;F)	,</translation>
    </message>
    <message>
        <source>Next F&amp;rame	.</source>
        <translation>次のフレーム(&amp;R)	.</translation>
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
        <translation>1×（標準）</translation>
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
        <translation>クリップを連続再生(&amp;C)</translation>
    </message>
    <message>
        <source>F&amp;ull Screen	Ctrl+F</source>
        <translation>全画面表示(&amp;U)	Ctrl+F</translation>
    </message>
    <message>
        <source>OpenStreetMap</source>
        <translation>OpenStreetMap</translation>
    </message>
    <message>
        <source>Open MBTiles File…</source>
        <translation>MBTiles ファイルを開く…</translation>
    </message>
    <message>
        <source>Open Tile Folder…</source>
        <translation>タイルフォルダーを開く…</translation>
    </message>
    <message>
        <source>Work Offline</source>
        <translation>オフラインで作業</translation>
    </message>
    <message>
        <source>Baidu</source>
        <translation>百度地図</translation>
    </message>
    <message>
        <source>Google</source>
        <translation>Google マップ</translation>
    </message>
    <message>
        <source>&amp;About Dashtrack</source>
        <translation>Dashtrack について(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Export Track</source>
        <translation>走行軌跡をエクスポート(&amp;E)</translation>
    </message>
    <message>
        <source>Loaded &amp;Clip…</source>
        <translation>開いているクリップ(&amp;C)…</translation>
    </message>
    <message>
        <source>Selected &amp;Trip…</source>
        <translation>選択中のトリップ(&amp;T)…</translation>
    </message>
    <message>
        <source>Whole &amp;Playlist…</source>
        <translation>プレイリスト全体(&amp;P)…</translation>
    </message>
    <message>
        <source>Save Se&amp;gment…</source>
        <translation>区間を保存(&amp;G)…</translation>
    </message>
    <message>
        <source>Mark &amp;Start	I</source>
        <translation>開始点を設定(&amp;S)	I</translation>
    </message>
    <message>
        <source>Mark &amp;End	O</source>
        <translation>終了点を設定(&amp;E)	O</translation>
    </message>
    <message>
        <source>C&amp;lear Marks</source>
        <translation>開始点・終了点を解除(&amp;L)</translation>
    </message>
</context>
<context>
    <name>MainWindowDelegate</name>
    <message>
        <source>Open Tile Folder</source>
        <translation>タイルフォルダーを開く</translation>
    </message>
    <message>
        <source>Open MBTiles File</source>
        <translation>MBTiles ファイルを開く</translation>
    </message>
    <message>
        <source>MBTiles files (*.mbtiles)</source>
        <translation>MBTiles ファイル (*.mbtiles)</translation>
    </message>
    <message>
        <source>Looking for movies…</source>
        <translation>動画を探しています…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Opening movies</source>
        <translation>動画を開いています</translation>
    </message>
    <message>
        <source>Open movie file</source>
        <translation>動画ファイルを開く</translation>
    </message>
    <message>
        <source>Movies (%1)</source>
        <translation>動画 (%1)</translation>
    </message>
    <message>
        <source>Not a movie any more</source>
        <translation>動画ファイルではなくなりました</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>no GPS</source>
        <translation>GPS なし</translation>
    </message>
</context>
<context>
    <name>MapView</name>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Centre on car</source>
        <translation>車を中央に表示</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地図</translation>
    </message>
</context>
<context>
    <name>PlaylistTableModel</name>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Read-outs</source>
        <translation>計器表示</translation>
    </message>
    <message>
        <source>Speed unit:</source>
        <translation>速度の単位：</translation>
    </message>
    <message>
        <source>Kilometres per hour</source>
        <translation>キロメートル毎時</translation>
    </message>
    <message>
        <source>Miles per hour</source>
        <translation>マイル毎時</translation>
    </message>
    <message>
        <source>Clock correction:</source>
        <translation>時刻の補正：</translation>
    </message>
    <message>
        <source>Clock correction</source>
        <translation>時刻の補正</translation>
    </message>
    <message>
        <source>Hours and minutes added to the times the camera recorded, from -23:59 to +23:59</source>
        <translation>カメラが記録した時刻に加える時間と分（-23:59～+23:59）</translation>
    </message>
    <message>
        <source>Clock correction problem</source>
        <translation>時刻の補正の問題</translation>
    </message>
    <message>
        <source>Added to the camera&apos;s dates and times, for a camera set to the wrong zone.</source>
        <translation>カメラのタイムゾーン設定が誤っているとき、記録された日付と時刻に加えます。</translation>
    </message>
    <message>
        <source>About the clock correction</source>
        <translation>時刻の補正について</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地図</translation>
    </message>
    <message>
        <source>Tile source:</source>
        <translation>タイルの取得元：</translation>
    </message>
    <message>
        <source>Tile source</source>
        <translation>タイルの取得元</translation>
    </message>
    <message>
        <source>MBTiles File…</source>
        <translation>MBTiles ファイル…</translation>
    </message>
    <message>
        <source>Tile Folder…</source>
        <translation>タイルフォルダー…</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>カスタム URL</translation>
    </message>
    <message>
        <source>Work Offline</source>
        <translation>オフラインで作業</translation>
    </message>
    <message>
        <source>Tile file or folder in use</source>
        <translation>使用中のタイルファイルまたはフォルダー</translation>
    </message>
    <message>
        <source>Custom URL:</source>
        <translation>カスタム URL：</translation>
    </message>
    <message>
        <source>Custom tile URL</source>
        <translation>カスタムタイル URL</translation>
    </message>
    <message>
        <source>An http or https address with {z}, {x} and {y} where the tile&apos;s numbers go</source>
        <translation>タイル番号の位置に {z}、{x}、{y} を置いた http または https のアドレス</translation>
    </message>
    <message>
        <source>Custom tile URL problem</source>
        <translation>カスタムタイル URL の問題</translation>
    </message>
    <message>
        <source>Tile cache:</source>
        <translation>タイルキャッシュ：</translation>
    </message>
    <message>
        <source>Tile cache size</source>
        <translation>タイルキャッシュのサイズ</translation>
    </message>
    <message>
        <source>Megabytes of downloaded tiles kept on the disk, from 10 to 2000</source>
        <translation>ディスクに残すダウンロード済みタイルの容量（MB、10～2000）</translation>
    </message>
    <message>
        <source>Clear Cache</source>
        <translation>キャッシュを消去</translation>
    </message>
    <message>
        <source>Clear tile cache</source>
        <translation>タイルキャッシュを消去</translation>
    </message>
    <message>
        <source>Tile cache problem</source>
        <translation>タイルキャッシュの問題</translation>
    </message>
    <message>
        <source>Tile cache status</source>
        <translation>タイルキャッシュの状態</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Play clips continuously</source>
        <translation>クリップを連続再生</translation>
    </message>
    <message>
        <source>Video renderer:</source>
        <translation>ビデオレンダラー：</translation>
    </message>
    <message>
        <source>Video renderer</source>
        <translation>ビデオレンダラー</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>ソフトウェア</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>次回の起動時に反映されます。</translation>
    </message>
    <message>
        <source>About the video renderer</source>
        <translation>ビデオレンダラーについて</translation>
    </message>
    <message>
        <source>Dialog buttons</source>
        <translation>ダイアログのボタン</translation>
    </message>
    <message>
        <source>DASHTRACK_VIDEO_RENDERER overrides this.</source>
        <translation>DASHTRACK_VIDEO_RENDERER の設定が優先されます。</translation>
    </message>
    <message>
        <source>Clearing…</source>
        <translation>消去しています…</translation>
    </message>
    <message>
        <source>Enter the address of the tile server.</source>
        <translation>タイルサーバーのアドレスを入力してください。</translation>
    </message>
    <message>
        <source>The address must start with http:// or https://.</source>
        <translation>アドレスは http:// か https:// で始めてください。</translation>
    </message>
    <message>
        <source>The address needs {z}, {x} and {y}.</source>
        <translation>アドレスには {z}、{x}、{y} が必要です。</translation>
    </message>
    <message>
        <source>This is not a valid address.</source>
        <translation>有効なアドレスではありません。</translation>
    </message>
    <message>
        <source>From %1 to %2 MB.</source>
        <translation>%1～%2 MB の範囲で指定してください。</translation>
    </message>
    <message>
        <source>Use ±HH:MM, from -23:59 to +23:59.</source>
        <translation>±HH:MM の形式で、-23:59～+23:59 の範囲で入力してください。</translation>
    </message>
    <message>
        <source>Cache cleared.</source>
        <translation>キャッシュを消去しました。</translation>
    </message>
    <message>
        <source>Some files could not be removed.</source>
        <translation>一部のファイルを削除できませんでした。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>RouteTracker</name>
    <message>
        <source>Car</source>
        <translation>車</translation>
    </message>
</context>
<context>
    <name>SaveSegment</name>
    <message>
        <source>Save Segment</source>
        <translation>区間を保存</translation>
    </message>
    <message>
        <source>MPEG-4 movie (*.mp4)</source>
        <translation>MPEG-4 動画 (*.mp4)</translation>
    </message>
    <message>
        <source>QuickTime movie (*.mov)</source>
        <translation>QuickTime 動画 (*.mov)</translation>
    </message>
    <message>
        <source>Saving the segment…</source>
        <translation>区間を保存しています…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Saving the segment</source>
        <translation>区間を保存中</translation>
    </message>
    <message>
        <source>The segment was not saved.</source>
        <translation>区間を保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>SnapshotSaveDialog</name>
    <message>
        <source>Save Snapshot</source>
        <translation>スナップショットを保存</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>PNG 画像 (*.png)</translation>
    </message>
    <message>
        <source>Stamp speed, place and time</source>
        <translation>速度・位置・日時を写し込む</translation>
    </message>
    <message>
        <source>Draws the speed, latitude, longitude, date and time across the bottom of the saved picture</source>
        <translation>保存する画像の下部に速度、緯度、経度、日付、時刻を写し込みます</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>No GPS</source>
        <translation>GPS なし</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>タイムライン</translation>
    </message>
    <message>
        <source>no GPS</source>
        <translation>GPS なし</translation>
    </message>
    <message>
        <source>No speed recorded over %1</source>
        <translation>%1 の間、速度の記録はありません</translation>
    </message>
    <message>
        <source>Speed over %1, highest %2 at %3</source>
        <translation>%1 間の速度、最高は %3 の %2</translation>
    </message>
    <message>
        <source>; marked %1 to %2</source>
        <translation>、区間 %1～%2 を指定</translation>
    </message>
    <message>
        <source>; marked from %1</source>
        <translation>、区間の開始点 %1</translation>
    </message>
    <message>
        <source>; marked up to %1</source>
        <translation>、区間の終了点 %1</translation>
    </message>
</context>
<context>
    <name>TitleBarButton</name>
    <message>
        <source>Close window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Minimise window</source>
        <translation>ウィンドウを最小化</translation>
    </message>
    <message>
        <source>Maximise window</source>
        <translation>ウィンドウを最大化</translation>
    </message>
    <message>
        <source>Restore window</source>
        <translation>ウィンドウを元のサイズに戻す</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
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
        <translation>元に戻す</translation>
    </message>
</context>
<context>
    <name>TripText</name>
    <message>
        <source>Trip %1 of %2</source>
        <translation>トリップ %1/%2</translation>
    </message>
    <message>
        <source>Trip %1 of %2: %3, from %4, %5, %6</source>
        <translation>トリップ %1/%2：%3、%4 から、%5、%6</translation>
    </message>
    <message>
        <source>Trip %1 of %2: %3, %4, %5</source>
        <translation>トリップ %1/%2：%3、%4、%5</translation>
    </message>
    <message>
        <source>%1 clip</source>
        <translation>%1 クリップ</translation>
    </message>
    <message>
        <source>%1 clips</source>
        <translation>%1 クリップ</translation>
    </message>
</context>
<context>
    <name>WindowTitleBar</name>
    <message>
        <source>Title bar</source>
        <translation>タイトルバー</translation>
    </message>
    <message>
        <source>Window title</source>
        <translation>ウィンドウのタイトル</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Plays dash camera movies with their GPS tracks.</source>
        <translation>ドライブレコーダーの動画を GPS の軌跡とともに再生します。</translation>
    </message>
    <message>
        <source>movies</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Movie files or folders of movies.</source>
        <translation>動画ファイル、または動画のあるフォルダー。</translation>
    </message>
    <message>
        <source>Quit once a movie has played to its end.</source>
        <translation>動画を最後まで再生したら終了します。</translation>
    </message>
    <message>
        <source>Quit once the first movie&apos;s first frame is on screen (for timing launches).</source>
        <translation>最初の動画の最初のフレームが表示されたら終了します（起動時間の計測用）。</translation>
    </message>
</context>
</TS>
