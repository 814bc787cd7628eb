#pragma once
// What a drop on the window carries, as far as the validation cares: the list of file names.

#include <optional>
#include <string>
#include <vector>

struct FilePasteboard {
    // Absent when the drop carries no file-name list.
    std::optional<std::vector<std::string>> filenames;
};
