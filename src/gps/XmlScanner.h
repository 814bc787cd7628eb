#pragma once
// A small non-validating XML tokenizer, enough for track files such as GPX: start tags with their
// attributes, end tags and text, in document order. Comments, processing instructions, the
// declaration, DOCTYPE (with an internal subset) and CDATA sections are passed over. It keeps no
// element stack and never recurses, and every step moves forward through the text, so any input
// is scanned in linear time; a construct left unterminated ends the document there.
// Only UTF-8 (or ASCII) documents are read; names are taken as they stand, prefixes included.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

class XmlScanner {
public:
    explicit XmlScanner(std::string_view document) : document_(document) {}

    enum class Kind { StartTag, EndTag, Text, End };
    struct Token {
        Kind kind = Kind::End;
        std::string_view name;        // tags: the element's name as written, "gpxtpx:speed"
        std::string_view attributes;  // start tags: the raw text between the name and '>' or '/>'
        bool selfClosing = false;     // start tags written <name/>
        std::string_view text;        // text: raw, entities not yet decoded
    };

    // The next token; End from the end of the document or its first unterminated construct on.
    Token next();

private:
    std::string_view document_;
    std::size_t at_ = 0;
};

// The part of a name after its namespace prefix: "gpxtpx:speed" -> "speed".
std::string_view xmlLocalName(std::string_view name);

// Text with the predefined entities and character references replaced, at most maxChars long;
// absent when it would be longer. An entity that is not understood stays as written.
std::optional<std::string> decodeXmlText(std::string_view raw, std::size_t maxChars);

// The raw value of the attribute called name in a start tag's attribute text; absent when the tag
// has none or the attribute text is malformed before it.
std::optional<std::string_view> xmlAttribute(std::string_view attributes, std::string_view name);
