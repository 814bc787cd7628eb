#pragma once
// The generator's two ways to fail. The tool turns them into one line on stderr and an exit code:
// deep inside the encoder and the file writer there is nothing sensible to do but give up.

#include <stdexcept>

// Anything that stops a movie from being made: an unreadable route, a failing encoder, a full disk.
class SampleGenError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// A command line that cannot be understood.
class UsageError : public SampleGenError {
public:
    using SampleGenError::SampleGenError;
};
