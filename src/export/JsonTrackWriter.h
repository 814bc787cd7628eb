#pragma once
// The full track as JSON: every stored value and every text the player shows, per sample.

#include "OutputBuffer.h"
#include "TrackWriter.h"

#include <cstddef>
#include <iosfwd>

// One object for a single movie; with several, an array of objects that each name their file.
// One sample per line, so the output diffs and greps well.
class JsonTrackWriter final : public TrackWriter {
public:
    JsonTrackWriter(std::ostream& out, bool severalFiles) : out_(out), severalFiles_(severalFiles) {}

    void begin() override;
    void file(const NamedTrack& track) override;
    void end() override;

private:
    OutputBuffer out_;
    bool severalFiles_;
    std::size_t written_ = 0;
};
