-- Loaded into the mpv program by bench/player-cpu.sh: writes, when mpv quits, the figures the
-- benchmark compares with Dashtrack's own (time from loading to the first frame, dropped frames)
-- to the file named by --script-opts=mpv_stats-out=FILE.
local options = { out = "" }
require("mp.options").read_options(options, "mpv_stats")

local started, first_frame_ms = nil, -1
local decoder_drops, output_drops = 0, 0

mp.register_event("start-file", function() started = mp.get_time() end)
-- playback-restart follows the first frame shown after loading.
mp.register_event("playback-restart", function()
    if first_frame_ms < 0 and started then first_frame_ms = (mp.get_time() - started) * 1000 end
end)
mp.observe_property("frame-drop-count", "number", function(_, v) if v then decoder_drops = v end end)
mp.observe_property("vo-drop-frame-count", "number", function(_, v) if v then output_drops = v end end)

mp.register_event("shutdown", function()
    local file = io.open(options.out, "w")
    if not file then return end
    file:write(string.format("first-frame-ms=%d decoder-drops=%d output-drops=%d\n",
                             first_frame_ms, decoder_drops, output_drops))
    file:close()
end)
