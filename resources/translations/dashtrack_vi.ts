<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN">
<context>
    <name>AboutView</name>
    <message>
        <source>About Dashtrack</source>
        <translation>Giới thiệu Dashtrack</translation>
    </message>
    <message>
        <source>Dashtrack icon</source>
        <translation>Biểu tượng Dashtrack</translation>
    </message>
    <message>
        <source>Application name</source>
        <translation>Tên ứng dụng</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Phiên bản</translation>
    </message>
    <message>
        <source>Plays dash camera movies with the speed, position, date and time they recorded.</source>
        <translation>Phát các đoạn phim của máy ghi hình hành trình cùng với tốc độ, vị trí, ngày và giờ đã được ghi lại.</translation>
    </message>
    <message>
        <source>What Dashtrack does</source>
        <translation>Dashtrack dùng để làm gì</translation>
    </message>
    <message>
        <source>Qt: LGPL 3
libmpv, FFmpeg and libplist: LGPL 2.1 or later
LED font made from DSEG: SIL Open Font License 1.1
Map data © OpenStreetMap contributors, ODbL</source>
        <translation>Qt: LGPL 3
libmpv, FFmpeg và libplist: LGPL 2.1 trở lên
Phông chữ LED tạo từ DSEG: SIL Open Font License 1.1
Dữ liệu bản đồ © những người đóng góp OpenStreetMap, ODbL</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Giấy phép</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>Close About</source>
        <translation>Đóng phần giới thiệu</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Phiên bản %1</translation>
    </message>
</context>
<context>
    <name>CarMarkerView</name>
    <message>
        <source>Car</source>
        <translation>Xe</translation>
    </message>
    <message>
        <source>Heading %1°</source>
        <translation>Hướng đi %1°</translation>
    </message>
</context>
<context>
    <name>ExportTrack</name>
    <message>
        <source>Export Track</source>
        <translation>Xuất lộ trình</translation>
    </message>
    <message>
        <source>Exporting the track to %1…</source>
        <translation>Đang xuất lộ trình ra %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Tiến trình xuất</translation>
    </message>
    <message>
        <source>The track could not be written to %1: %2.</source>
        <translation>Không ghi được lộ trình vào %1: %2.</translation>
    </message>
</context>
<context>
    <name>GPSControlView</name>
    <message>
        <source>Player controls</source>
        <translation>Điều khiển trình phát</translation>
    </message>
</context>
<context>
    <name>GPSTableHeaderView</name>
    <message>
        <source>Columns</source>
        <translation>Cột</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Title</source>
        <translation>Tiêu đề</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Đoạn phim</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Dòng thời gian</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Vị trí phát</translation>
    </message>
    <message>
        <source>Elapsed and total time</source>
        <translation>Thời gian đã phát và tổng thời gian</translation>
    </message>
    <message>
        <source>0:00 / 0:00</source>
        <translation>0:00 / 0:00</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Đoạn trước</translation>
    </message>
    <message>
        <source>Previous movie (Ctrl+Left)</source>
        <translation>Đoạn phim trước (Ctrl+Left)</translation>
    </message>
    <message>
        <source>Back 10 seconds</source>
        <translation>Lùi 10 giây</translation>
    </message>
    <message>
        <source>Back 10 seconds (Left)</source>
        <translation>Lùi 10 giây (Left)</translation>
    </message>
    <message>
        <source>-10 s</source>
        <translation>-10 giây</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Phát</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Phát (Space)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Tạm dừng</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Tạm dừng (Space)</translation>
    </message>
    <message>
        <source>Forward 10 seconds</source>
        <translation>Tiến 10 giây</translation>
    </message>
    <message>
        <source>Forward 10 seconds (Right)</source>
        <translation>Tiến 10 giây (Right)</translation>
    </message>
    <message>
        <source>+10 s</source>
        <translation>+10 giây</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Đoạn tiếp theo</translation>
    </message>
    <message>
        <source>Next movie (Ctrl+Right)</source>
        <translation>Đoạn phim tiếp theo (Ctrl+Right)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Dừng</translation>
    </message>
    <message>
        <source>Stop (Ctrl+Backspace)</source>
        <translation>Dừng (Ctrl+Backspace)</translation>
    </message>
    <message>
        <source>Save snapshot</source>
        <translation>Lưu ảnh chụp</translation>
    </message>
    <message>
        <source>Save the picture as a PNG file</source>
        <translation>Lưu khung hình thành tệp PNG</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Chụp ảnh</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Toàn màn hình</translation>
    </message>
    <message>
        <source>Full screen (Ctrl+F)</source>
        <translation>Toàn màn hình (Ctrl+F)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Tắt tiếng</translation>
    </message>
    <message>
        <source>Muted: click for sound</source>
        <translation>Đang tắt tiếng: bấm để bật âm thanh</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Đã tắt tiếng</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>Đang bật âm thanh</translation>
    </message>
    <message>
        <source>Sound on: click to mute</source>
        <translation>Đang bật âm thanh: bấm để tắt tiếng</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Âm thanh</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Âm lượng</translation>
    </message>
    <message>
        <source>Volume (Up, Down)</source>
        <translation>Âm lượng (Up, Down)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tốc độ</translation>
    </message>
    <message>
        <source>00.00</source>
        <translation>00.00</translation>
    </message>
    <message>
        <source>Speed unit</source>
        <translation>Đơn vị tốc độ</translation>
    </message>
    <message>
        <source>LAT</source>
        <translation>VĨ ĐỘ</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Vĩ độ</translation>
    </message>
    <message>
        <source>00.00000</source>
        <translation>00.00000</translation>
    </message>
    <message>
        <source>LON</source>
        <translation>KINH ĐỘ</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Kinh độ</translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>NGÀY</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Ngày</translation>
    </message>
    <message>
        <source>00/00/00</source>
        <translation>00/00/00</translation>
    </message>
    <message>
        <source>TIME</source>
        <translation>GIỜ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Giờ</translation>
    </message>
    <message>
        <source>00:00:00</source>
        <translation>00:00:00</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Bản đồ</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>Danh sách phát</translation>
    </message>
    <message>
        <source>Trip</source>
        <translation>Chuyến đi</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Tệp</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Phát</translation>
    </message>
    <message>
        <source>Playback &amp;Rate</source>
        <translation>Tốc độ p&amp;hát</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>Đơn &amp;vị</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Ngôn ngữ</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Bản đồ</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Sửa</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Trợ &amp;giúp</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Mở…</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>&amp;Remove from Playlist</source>
        <translation>&amp;Xóa khỏi danh sách phát</translation>
    </message>
    <message>
        <source>&amp;Save Snapshot…</source>
        <translation>&amp;Lưu ảnh chụp…</translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>Tùy &amp;chọn…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Thoát</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Play/Pause	Space</source>
        <translation>&amp;Phát/Tạm dừng	Space</translation>
    </message>
    <message>
        <source>&amp;Stop	Ctrl+Backspace</source>
        <translation>&amp;Dừng	Ctrl+Backspace</translation>
    </message>
    <message>
        <source>&amp;Back 10 Seconds	Left</source>
        <translation>&amp;Lùi 10 giây	Left</translation>
    </message>
    <message>
        <source>&amp;Forward 10 Seconds	Right</source>
        <translation>&amp;Tiến 10 giây	Right</translation>
    </message>
    <message>
        <source>Pre&amp;vious Movie	Ctrl+Left</source>
        <translation>Đoạn phim t&amp;rước	Ctrl+Left</translation>
    </message>
    <message>
        <source>&amp;Next Movie	Ctrl+Right</source>
        <translation>Đoạn phim tiếp th&amp;eo	Ctrl+Right</translation>
    </message>
    <message>
        <source>Fast F&amp;orward	Ctrl+Up</source>
        <translation>Tua &amp;nhanh	Ctrl+Up</translation>
    </message>
    <message>
        <source>Fast Bac&amp;kward	Ctrl+Down</source>
        <translation>Tua lù&amp;i nhanh	Ctrl+Down</translation>
    </message>
    <message>
        <source>Volume &amp;Up	Up</source>
        <translation>Tăng â&amp;m lượng	Up</translation>
    </message>
    <message>
        <source>Volume &amp;Down	Down</source>
        <translation>&amp;Giảm âm lượng	Down</translation>
    </message>
    <message>
        <source>&amp;Copy Position</source>
        <translation>&amp;Sao chép vị trí</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>&amp;Open Position in Browser</source>
        <translation>&amp;Mở vị trí trong trình duyệt</translation>
    </message>
    <message>
        <source>Previous &amp;Frame	,</source>
        <translation>Khung hình trướ&amp;c	,</translation>
    </message>
    <message>
        <source>Next F&amp;rame	.</source>
        <translation>Khung hình &amp;kế tiếp	.</translation>
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
        <translation>1× (Bình thường)</translation>
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
        <translation>Phát liên tục các đoạn phi&amp;m</translation>
    </message>
    <message>
        <source>F&amp;ull Screen	Ctrl+F</source>
        <translation>T&amp;oàn màn hình	Ctrl+F</translation>
    </message>
    <message>
        <source>OpenStreetMap</source>
        <translation>OpenStreetMap</translation>
    </message>
    <message>
        <source>Open MBTiles File…</source>
        <translation>Mở tệp MBTiles…</translation>
    </message>
    <message>
        <source>Open Tile Folder…</source>
        <translation>Mở thư mục ô bản đồ…</translation>
    </message>
    <message>
        <source>Work Offline</source>
        <translation>Làm việc ngoại tuyến</translation>
    </message>
    <message>
        <source>Baidu</source>
        <translation>Bản đồ Baidu</translation>
    </message>
    <message>
        <source>Google</source>
        <translation>Bản đồ Google</translation>
    </message>
    <message>
        <source>&amp;About Dashtrack</source>
        <translation>&amp;Giới thiệu Dashtrack</translation>
    </message>
    <message>
        <source>&amp;Export Track</source>
        <translation>X&amp;uất lộ trình</translation>
    </message>
    <message>
        <source>Loaded &amp;Clip…</source>
        <translation>Đoạn &amp;phim đang mở…</translation>
    </message>
    <message>
        <source>Selected &amp;Trip…</source>
        <translation>&amp;Chuyến đi đã chọn…</translation>
    </message>
    <message>
        <source>Whole &amp;Playlist…</source>
        <translation>&amp;Toàn bộ danh sách phát…</translation>
    </message>
    <message>
        <source>Save Se&amp;gment…</source>
        <translation>Lưu &amp;phân đoạn…</translation>
    </message>
    <message>
        <source>Mark &amp;Start	I</source>
        <translation>Đánh dấu điểm đầ&amp;u	I</translation>
    </message>
    <message>
        <source>Mark &amp;End	O</source>
        <translation>Đánh dấu điểm &amp;cuối	O</translation>
    </message>
    <message>
        <source>C&amp;lear Marks</source>
        <translation>&amp;Xóa các điểm đánh dấu</translation>
    </message>
</context>
<context>
    <name>MainWindowDelegate</name>
    <message>
        <source>Open Tile Folder</source>
        <translation>Mở thư mục ô bản đồ</translation>
    </message>
    <message>
        <source>Open MBTiles File</source>
        <translation>Mở tệp MBTiles</translation>
    </message>
    <message>
        <source>MBTiles files (*.mbtiles)</source>
        <translation>Tệp MBTiles (*.mbtiles)</translation>
    </message>
    <message>
        <source>Looking for movies…</source>
        <translation>Đang tìm các đoạn phim…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Opening movies</source>
        <translation>Đang mở các đoạn phim</translation>
    </message>
    <message>
        <source>Open movie file</source>
        <translation>Mở tệp phim</translation>
    </message>
    <message>
        <source>Movies (%1)</source>
        <translation>Đoạn phim (%1)</translation>
    </message>
    <message>
        <source>Not a movie any more</source>
        <translation>Không còn là tệp phim</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Không tìm thấy tệp</translation>
    </message>
    <message>
        <source>no GPS</source>
        <translation>không có GPS</translation>
    </message>
</context>
<context>
    <name>MapView</name>
    <message>
        <source>Zoom in</source>
        <translation>Phóng to</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Thu nhỏ</translation>
    </message>
    <message>
        <source>Centre on car</source>
        <translation>Đưa xe về giữa</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Bản đồ</translation>
    </message>
</context>
<context>
    <name>PlaylistTableModel</name>
    <message>
        <source>File</source>
        <translation>Tệp</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Ngày giờ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Kích thước</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Tùy chọn</translation>
    </message>
    <message>
        <source>Read-outs</source>
        <translation>Số liệu hiển thị</translation>
    </message>
    <message>
        <source>Speed unit:</source>
        <translation>Đơn vị tốc độ:</translation>
    </message>
    <message>
        <source>Kilometres per hour</source>
        <translation>Ki-lô-mét mỗi giờ</translation>
    </message>
    <message>
        <source>Miles per hour</source>
        <translation>Dặm mỗi giờ</translation>
    </message>
    <message>
        <source>Clock correction:</source>
        <translation>Hiệu chỉnh đồng hồ:</translation>
    </message>
    <message>
        <source>Clock correction</source>
        <translation>Hiệu chỉnh đồng hồ</translation>
    </message>
    <message>
        <source>Hours and minutes added to the times the camera recorded, from -23:59 to +23:59</source>
        <translation>Số giờ và phút cộng vào thời gian máy quay đã ghi, từ -23:59 đến +23:59</translation>
    </message>
    <message>
        <source>Clock correction problem</source>
        <translation>Lỗi hiệu chỉnh đồng hồ</translation>
    </message>
    <message>
        <source>Added to the camera&apos;s dates and times, for a camera set to the wrong zone.</source>
        <translation>Cộng vào ngày giờ của máy quay, dành cho máy quay đặt sai múi giờ.</translation>
    </message>
    <message>
        <source>About the clock correction</source>
        <translation>Về hiệu chỉnh đồng hồ</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Bản đồ</translation>
    </message>
    <message>
        <source>Tile source:</source>
        <translation>Nguồn ô bản đồ:</translation>
    </message>
    <message>
        <source>Tile source</source>
        <translation>Nguồn ô bản đồ</translation>
    </message>
    <message>
        <source>MBTiles File…</source>
        <translation>Tệp MBTiles…</translation>
    </message>
    <message>
        <source>Tile Folder…</source>
        <translation>Thư mục ô bản đồ…</translation>
    </message>
    <message>
        <source>Custom URL</source>
        <translation>URL tùy chỉnh</translation>
    </message>
    <message>
        <source>Work Offline</source>
        <translation>Làm việc ngoại tuyến</translation>
    </message>
    <message>
        <source>Tile file or folder in use</source>
        <translation>Tệp hoặc thư mục ô bản đồ đang dùng</translation>
    </message>
    <message>
        <source>Custom URL:</source>
        <translation>URL tùy chỉnh:</translation>
    </message>
    <message>
        <source>Custom tile URL</source>
        <translation>URL ô bản đồ tùy chỉnh</translation>
    </message>
    <message>
        <source>An http or https address with {z}, {x} and {y} where the tile&apos;s numbers go</source>
        <translation>Địa chỉ http hoặc https, có {z}, {x} và {y} ở chỗ số hiệu của ô bản đồ</translation>
    </message>
    <message>
        <source>Custom tile URL problem</source>
        <translation>Lỗi URL ô bản đồ tùy chỉnh</translation>
    </message>
    <message>
        <source>Tile cache:</source>
        <translation>Bộ nhớ đệm ô bản đồ:</translation>
    </message>
    <message>
        <source>Tile cache size</source>
        <translation>Dung lượng bộ nhớ đệm ô bản đồ</translation>
    </message>
    <message>
        <source>Megabytes of downloaded tiles kept on the disk, from 10 to 2000</source>
        <translation>Dung lượng ô bản đồ đã tải giữ lại trên đĩa, từ 10 đến 2000 MB</translation>
    </message>
    <message>
        <source>Clear Cache</source>
        <translation>Xóa bộ nhớ đệm</translation>
    </message>
    <message>
        <source>Clear tile cache</source>
        <translation>Xóa bộ nhớ đệm ô bản đồ</translation>
    </message>
    <message>
        <source>Tile cache problem</source>
        <translation>Lỗi bộ nhớ đệm ô bản đồ</translation>
    </message>
    <message>
        <source>Tile cache status</source>
        <translation>Trạng thái bộ nhớ đệm ô bản đồ</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Phát lại</translation>
    </message>
    <message>
        <source>Play clips continuously</source>
        <translation>Phát liên tục các đoạn phim</translation>
    </message>
    <message>
        <source>Video renderer:</source>
        <translation>Trình kết xuất video:</translation>
    </message>
    <message>
        <source>Video renderer</source>
        <translation>Trình kết xuất video</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Tự động</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Phần mềm</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>Có hiệu lực từ lần khởi động sau.</translation>
    </message>
    <message>
        <source>About the video renderer</source>
        <translation>Về trình kết xuất video</translation>
    </message>
    <message>
        <source>Dialog buttons</source>
        <translation>Các nút của hộp thoại</translation>
    </message>
    <message>
        <source>DASHTRACK_VIDEO_RENDERER overrides this.</source>
        <translation>DASHTRACK_VIDEO_RENDERER được ưu tiên hơn lựa chọn này.</translation>
    </message>
    <message>
        <source>Clearing…</source>
        <translation>Đang xóa…</translation>
    </message>
    <message>
        <source>Enter the address of the tile server.</source>
        <translation>Hãy nhập địa chỉ máy chủ ô bản đồ.</translation>
    </message>
    <message>
        <source>The address must start with http:// or https://.</source>
        <translation>Địa chỉ phải bắt đầu bằng http:// hoặc https://.</translation>
    </message>
    <message>
        <source>The address needs {z}, {x} and {y}.</source>
        <translation>Địa chỉ cần có {z}, {x} và {y}.</translation>
    </message>
    <message>
        <source>This is not a valid address.</source>
        <translation>Đây không phải là địa chỉ hợp lệ.</translation>
    </message>
    <message>
        <source>From %1 to %2 MB.</source>
        <translation>Từ %1 đến %2 MB.</translation>
    </message>
    <message>
        <source>Use ±HH:MM, from -23:59 to +23:59.</source>
        <translation>Dùng dạng ±HH:MM, từ -23:59 đến +23:59.</translation>
    </message>
    <message>
        <source>Cache cleared.</source>
        <translation>Đã xóa bộ nhớ đệm.</translation>
    </message>
    <message>
        <source>Some files could not be removed.</source>
        <translation>Không xóa được một số tệp.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
</context>
<context>
    <name>RouteTracker</name>
    <message>
        <source>Car</source>
        <translation>Xe</translation>
    </message>
</context>
<context>
    <name>SaveSegment</name>
    <message>
        <source>Save Segment</source>
        <translation>Lưu phân đoạn</translation>
    </message>
    <message>
        <source>MPEG-4 movie (*.mp4)</source>
        <translation>Phim MPEG-4 (*.mp4)</translation>
    </message>
    <message>
        <source>QuickTime movie (*.mov)</source>
        <translation>Phim QuickTime (*.mov)</translation>
    </message>
    <message>
        <source>Saving the segment…</source>
        <translation>Đang lưu phân đoạn…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Saving the segment</source>
        <translation>Đang lưu phân đoạn</translation>
    </message>
    <message>
        <source>The segment was not saved.</source>
        <translation>Không lưu được phân đoạn.</translation>
    </message>
</context>
<context>
    <name>SnapshotSaveDialog</name>
    <message>
        <source>Save Snapshot</source>
        <translation>Lưu ảnh chụp</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>Ảnh PNG (*.png)</translation>
    </message>
    <message>
        <source>Stamp speed, place and time</source>
        <translation>Đóng dấu tốc độ, vị trí và thời gian lên ảnh</translation>
    </message>
    <message>
        <source>Draws the speed, latitude, longitude, date and time across the bottom of the saved picture</source>
        <translation>Ghi tốc độ, vĩ độ, kinh độ, ngày và giờ dọc theo phía dưới của ảnh được lưu</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>No GPS</source>
        <translation>Không có GPS</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Dòng thời gian</translation>
    </message>
    <message>
        <source>no GPS</source>
        <translation>không có GPS</translation>
    </message>
    <message>
        <source>No speed recorded over %1</source>
        <translation>Không có tốc độ nào được ghi trong %1</translation>
    </message>
    <message>
        <source>Speed over %1, highest %2 at %3</source>
        <translation>Tốc độ trong %1, cao nhất %2 lúc %3</translation>
    </message>
    <message>
        <source>; marked %1 to %2</source>
        <translation>; đã đánh dấu từ %1 đến %2</translation>
    </message>
    <message>
        <source>; marked from %1</source>
        <translation>; đã đánh dấu điểm đầu %1</translation>
    </message>
    <message>
        <source>; marked up to %1</source>
        <translation>; đã đánh dấu điểm cuối %1</translation>
    </message>
</context>
<context>
    <name>TitleBarButton</name>
    <message>
        <source>Close window</source>
        <translation>Đóng cửa sổ</translation>
    </message>
    <message>
        <source>Minimise window</source>
        <translation>Thu nhỏ cửa sổ</translation>
    </message>
    <message>
        <source>Maximise window</source>
        <translation>Phóng to cửa sổ</translation>
    </message>
    <message>
        <source>Restore window</source>
        <translation>Khôi phục cửa sổ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Thu nhỏ</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Phóng to</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Khôi phục</translation>
    </message>
</context>
<context>
    <name>TripText</name>
    <message>
        <source>Trip %1 of %2</source>
        <translation>Chuyến đi %1/%2</translation>
    </message>
    <message>
        <source>Trip %1 of %2: %3, from %4, %5, %6</source>
        <translation>Chuyến đi %1/%2: %3, từ %4, %5, %6</translation>
    </message>
    <message>
        <source>Trip %1 of %2: %3, %4, %5</source>
        <translation>Chuyến đi %1/%2: %3, %4, %5</translation>
    </message>
    <message>
        <source>%1 clip</source>
        <translation>%1 đoạn phim</translation>
    </message>
    <message>
        <source>%1 clips</source>
        <translation>%1 đoạn phim</translation>
    </message>
</context>
<context>
    <name>WindowTitleBar</name>
    <message>
        <source>Title bar</source>
        <translation>Thanh tiêu đề</translation>
    </message>
    <message>
        <source>Window title</source>
        <translation>Tiêu đề cửa sổ</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Plays dash camera movies with their GPS tracks.</source>
        <translation>Phát các đoạn phim của máy ghi hình hành trình cùng hành trình GPS của chúng.</translation>
    </message>
    <message>
        <source>movies</source>
        <translation>phim</translation>
    </message>
    <message>
        <source>Movie files or folders of movies.</source>
        <translation>Tệp phim hoặc thư mục chứa phim.</translation>
    </message>
    <message>
        <source>Quit once a movie has played to its end.</source>
        <translation>Thoát khi một đoạn phim đã phát hết.</translation>
    </message>
    <message>
        <source>Quit once the first movie&apos;s first frame is on screen (for timing launches).</source>
        <translation>Thoát khi khung hình đầu tiên của đoạn phim đầu tiên hiện lên (để đo thời gian khởi động).</translation>
    </message>
</context>
</TS>
