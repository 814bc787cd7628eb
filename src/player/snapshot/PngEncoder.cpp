#include "PngEncoder.h"

#include "Utf8.h"

#include <png.h>
#include <zlib.h>

#include <algorithm>
#include <csetjmp>
#include <deque>
#include <new>

namespace {

// Where libpng writes the file. A failed allocation is noted, not thrown through libpng's C frames.
struct PngBytes {
    std::vector<uint8_t> bytes;
    bool failed = false;
};

void appendBytes(png_structp png, png_bytep data, png_size_t size) {
    auto* out = static_cast<PngBytes*>(png_get_io_ptr(png));
    if (out->failed) return;
    try {
        out->bytes.insert(out->bytes.end(), data, data + size);
    } catch (const std::bad_alloc&) {
        out->failed = true;
    }
}

void flushNothing(png_structp) {}

class PngWriteStruct {
public:
    PngWriteStruct() : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr)) {
        if (png_ != nullptr) info_ = png_create_info_struct(png_);
    }
    ~PngWriteStruct() { png_destroy_write_struct(&png_, &info_); }
    PngWriteStruct(const PngWriteStruct&) = delete;
    PngWriteStruct& operator=(const PngWriteStruct&) = delete;

    png_structp png() const { return png_; }
    png_infop info() const { return info_; }

private:
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
};

// PNG's rule for keywords: 1 to 79 printable Latin-1 bytes, no leading, trailing or double spaces.
bool isValidKeyword(const std::string& keyword) {
    if (keyword.empty() || keyword.size() > 79 || keyword.front() == ' ' || keyword.back() == ' ') return false;
    if (keyword.find("  ") != std::string::npos) return false;
    return std::all_of(keyword.begin(), keyword.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return (byte >= 32 && byte <= 126) || byte >= 161;
    });
}

bool isAscii(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 128; });
}

// The chunks as libpng takes them; they point into storage, whose strings stay where they are as
// it grows.
std::vector<png_text> textChunks(std::span<const PngText> texts, std::deque<std::string>& storage) {
    std::vector<png_text> chunks;
    for (const PngText& text : texts) {
        if (!isValidKeyword(text.keyword)) continue;
        storage.push_back(text.keyword);
        char* keyword = storage.back().data();
        storage.push_back(text.text.substr(0, text.text.find('\0')));
        std::string& value = storage.back();
        png_text chunk{};
        chunk.key = keyword;
        chunk.text = value.data();
        chunk.text_length = value.size();
        // A file name that is not UTF-8 stays as its bytes, which tEXt can hold.
        chunk.compression = (!isAscii(value) && isValidUtf8(value)) ? PNG_ITXT_COMPRESSION_NONE : PNG_TEXT_COMPRESSION_NONE;
        chunks.push_back(chunk);
    }
    return chunks;
}

// libpng reports its errors by longjmp to here; nothing between the setjmp and libpng's calls
// needs a destructor.
bool writePng(const PngWriteStruct& writer, const RgbImage& image, std::span<png_text> texts, PngBytes& out) {
    png_structp png = writer.png();
    png_infop info = writer.info();
    if (setjmp(png_jmpbuf(png))) return false;
    png_set_write_fn(png, &out, appendBytes, flushNothing);
    png_set_IHDR(png, info, static_cast<png_uint_32>(image.width), static_cast<png_uint_32>(image.height), 8,
                 PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    // The snapshot keeps the user interface waiting: the "up" filter with run-length deflate is
    // several times faster than libpng's default effort (all filters, deflate level 6) on camera
    // frames, for files about 5% larger.
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_UP);
    png_set_compression_strategy(png, Z_RLE);
    png_set_compression_level(png, 1);
    if (!texts.empty()) png_set_text(png, info, texts.data(), static_cast<int>(texts.size()));
    png_write_info(png, info);
    for (int y = 0; y < image.height; ++y) {
        png_write_row(png, image.pixels.data() + image.rowBytes() * static_cast<std::size_t>(y));
    }
    png_write_end(png, info);
    return true;
}

}  // namespace

std::optional<std::vector<uint8_t>> PngEncoder::encode(const RgbImage& image, std::span<const PngText> texts) {
    if (image.width <= 0 || image.height <= 0 ||
        image.pixels.size() != image.rowBytes() * static_cast<std::size_t>(image.height)) {
        return std::nullopt;
    }
    const PngWriteStruct writer;
    if (writer.info() == nullptr) return std::nullopt;
    std::deque<std::string> textStorage;
    std::vector<png_text> chunks = textChunks(texts, textStorage);
    PngBytes out;
    if (!writePng(writer, image, chunks, out) || out.failed) return std::nullopt;
    return std::move(out.bytes);
}
