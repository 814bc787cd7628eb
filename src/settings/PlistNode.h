#pragma once
// Ownership of a libplist node tree: freeing the root frees everything under it.

#include <plist/plist.h>

#include <memory>

struct PlistNodeDeleter {
    void operator()(void* node) const { plist_free(static_cast<plist_t>(node)); }
};
using PlistNode = std::unique_ptr<void, PlistNodeDeleter>;
