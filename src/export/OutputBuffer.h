#pragma once
// A document's text on its way to the stream: it gathers in one string and leaves in large
// pieces, so a track of thousands of samples costs a few writes rather than thousands.

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

class OutputBuffer {
public:
    explicit OutputBuffer(std::ostream& out);
    // Whatever is left goes to the stream, so no text is lost by a writer that did not end.
    ~OutputBuffer();
    OutputBuffer(const OutputBuffer&) = delete;
    OutputBuffer& operator=(const OutputBuffer&) = delete;

    // The text not yet handed on; writers append to it.
    std::string& text() { return text_; }
    OutputBuffer& operator<<(std::string_view text) {
        text_ += text;
        return *this;
    }
    OutputBuffer& operator<<(char c) {
        text_ += c;
        return *this;
    }

    // Hands the text on once it passes kFlushBytes: a 72-hour track then never sits in memory
    // whole as text. Writers call it between samples.
    void flushWhenFull() {
        if (text_.size() >= kFlushBytes) flush();
    }
    void flush();

    static constexpr std::size_t kFlushBytes = std::size_t(256) << 10;

private:
    std::ostream& out_;
    std::string text_;
};
