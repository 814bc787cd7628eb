#include "OutputBuffer.h"

#include <ostream>

OutputBuffer::OutputBuffer(std::ostream& out) : out_(out) {
    // Room for a full buffer and the sample that passes the mark, so the string never moves.
    text_.reserve(kFlushBytes + kFlushBytes / 4);
}

OutputBuffer::~OutputBuffer() { flush(); }

void OutputBuffer::flush() {
    if (text_.empty()) return;
    out_.write(text_.data(), std::streamsize(text_.size()));
    text_.clear();
}
