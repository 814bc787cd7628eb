#include "SettingsFile.h"

#include "AtomicFile.h"

#include <cmath>
#include <fstream>
#include <iterator>
#include <limits>
#include <system_error>

namespace {

// The settings file holds two numbers; anything this large is not ours, and libplist takes
// 32-bit lengths anyway.
constexpr std::uintmax_t maximumFileSize = 16 * 1024 * 1024;

// Any kind of directory entry counts as the user's copy, a dangling link included, so that
// something we cannot read is never silently replaced by a fresh file.
bool entryExists(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(path, error));
}

// Only regular files are opened: a FIFO at the settings path would block the start-up.
std::optional<std::string> readSmallRegularFile(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
    const auto size = std::filesystem::file_size(path, error);
    if (error || size == 0 || size > maximumFileSize) return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad() || bytes.empty() || bytes.size() > maximumFileSize) return std::nullopt;
    return bytes;
}

// XML or binary property list whose root is a dictionary.
PlistNode parseDictionary(const std::string& bytes) {
    plist_t parsed = nullptr;
    plist_from_memory(bytes.data(), static_cast<uint32_t>(bytes.size()), &parsed);
    PlistNode root(parsed);
    if (plist_get_node_type(root.get()) != PLIST_DICT) return nullptr;
    return root;
}

// Writing follows a symbolic link so that a linked settings file (dotfile managers) stays linked.
std::filesystem::path resolvedWriteTarget(const std::filesystem::path& path) {
    std::error_code error;
    if (std::filesystem::is_symlink(path, error)) {
        auto target = std::filesystem::canonical(path, error);
        if (!error) return target;
    }
    return path;
}

bool writeFollowingLinks(const std::filesystem::path& file, std::string_view contents) {
    return writeFileAtomically(resolvedWriteTarget(file), contents);
}

}  // namespace

SettingsFile SettingsFile::load(const SettingsLocation& location, SettingsWriter::WriteFile write) {
    SettingsFile settings;
    settings.writeTo_ = location.userFile;
    settings.writeFile_ = write ? std::move(write) : writeFollowingLinks;
    if (location.userFile && entryExists(*location.userFile))
        settings.readFrom_ = location.userFile;
    else if (location.shippedFile && entryExists(*location.shippedFile))
        settings.readFrom_ = location.shippedFile;
    if (!settings.readFrom_) return settings;
    if (auto bytes = readSmallRegularFile(*settings.readFrom_)) settings.root_ = parseDictionary(*bytes);
    return settings;
}

plist_t SettingsFile::item(const std::string& key) const {
    if (!root_) return nullptr;
    return plist_dict_get_item(root_.get(), key.c_str());
}

std::optional<uint64_t> SettingsFile::unsignedValue(const std::string& key) const {
    plist_t node = item(key);
    switch (plist_get_node_type(node)) {
        case PLIST_UINT: {
            uint64_t value = 0;
            plist_get_uint_val(node, &value);
            return value;
        }
        case PLIST_REAL: {
            double value = 0;
            plist_get_real_val(node, &value);
            // Truncating a negative, huge or NaN real to unsigned would be undefined.
            if (!(value >= 0.0 && value < 18446744073709551616.0)) return std::nullopt;
            return static_cast<uint64_t>(value);
        }
        default:
            return std::nullopt;
    }
}

std::optional<double> SettingsFile::realValue(const std::string& key) const {
    plist_t node = item(key);
    switch (plist_get_node_type(node)) {
        case PLIST_REAL: {
            double value = 0;
            plist_get_real_val(node, &value);
            if (!std::isfinite(value)) return std::nullopt;
            return value;
        }
        case PLIST_UINT: {
            uint64_t value = 0;
            plist_get_uint_val(node, &value);
            return static_cast<double>(value);
        }
        default:
            return std::nullopt;
    }
}

bool SettingsFile::setUnsignedValue(const std::string& key, uint64_t value) {
    return replace(key, PlistNode(plist_new_uint(value)));
}

bool SettingsFile::setRealValue(const std::string& key, double value) {
    return replace(key, PlistNode(plist_new_real(value)));
}

std::optional<std::string> SettingsFile::stringValue(const std::string& key) const {
    plist_t node = item(key);
    if (plist_get_node_type(node) != PLIST_STRING) return std::nullopt;
    uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    if (text == nullptr) return std::nullopt;
    return std::string(text, length);
}

bool SettingsFile::setStringValue(const std::string& key, const std::string& value) {
    return replace(key, PlistNode(plist_new_string(value.c_str())));
}

bool SettingsFile::replace(const std::string& key, PlistNode value) {
    if (!root_ || !value) return false;
    plist_t current = plist_dict_get_item(root_.get(), key.c_str());
    if (current && plist_get_node_type(current) == plist_get_node_type(value.get()) &&
        plist_compare_node_value(current, value.get()))
        return false;
    // The dictionary takes ownership of the new node and frees the one it replaces.
    plist_dict_set_item(root_.get(), key.c_str(), value.release());
    return save();
}

bool SettingsFile::save() {
    if (!writeTo_) return false;
    char* xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(root_.get(), &xml, &length);
    if (xml == nullptr) return false;
    std::string contents(xml, length);
    plist_to_xml_free(xml);
    if (!writer_) writer_ = std::make_unique<SettingsWriter>(*writeTo_, writeFile_);
    writer_->write(std::move(contents));
    return true;
}

bool SettingsFile::flush() { return writer_ ? writer_->flush() : true; }
