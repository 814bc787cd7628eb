#include "XmlScanner.h"

namespace {

// "#x0041" and "quot" fit; a longer name is no reference we decode.
constexpr std::size_t kMaxReferenceChars = 8;

bool isSpace(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

bool isNameChar(char c) { return !isSpace(c) && c != '/' && c != '>' && c != '<' && c != '=' && c != '\0'; }

std::size_t skipSpaces(std::string_view text, std::size_t at) {
    while (at < text.size() && isSpace(text[at])) ++at;
    return at;
}

// The character a reference such as "#65" or "#x41" names, if it is ASCII: anything else can play
// no part in the numbers and times a track is read from.
std::optional<char> characterReference(std::string_view reference) {
    if (reference.size() < 2 || reference.size() > 8 || reference[0] != '#') return std::nullopt;
    const bool hex = reference[1] == 'x' || reference[1] == 'X';
    std::string_view digits = reference.substr(hex ? 2 : 1);
    if (digits.empty()) return std::nullopt;
    unsigned value = 0;
    for (const char c : digits) {
        unsigned digit = 0;
        if (c >= '0' && c <= '9') {
            digit = unsigned(c - '0');
        } else if (hex && c >= 'a' && c <= 'f') {
            digit = unsigned(c - 'a' + 10);
        } else if (hex && c >= 'A' && c <= 'F') {
            digit = unsigned(c - 'A' + 10);
        } else {
            return std::nullopt;
        }
        value = value * (hex ? 16 : 10) + digit;
    }
    if (value == 0 || value > 127) return std::nullopt;
    return char(value);
}

std::optional<char> entity(std::string_view name) {
    if (name == "amp") return '&';
    if (name == "lt") return '<';
    if (name == "gt") return '>';
    if (name == "quot") return '"';
    if (name == "apos") return '\'';
    return characterReference(name);
}

}  // namespace

XmlScanner::Token XmlScanner::next() {
    const std::string_view doc = document_;
    while (at_ < doc.size()) {
        if (doc[at_] != '<') {
            const std::size_t end = doc.find('<', at_);
            Token token{Kind::Text, {}, {}, false, doc.substr(at_, end - at_)};
            at_ = end == std::string_view::npos ? doc.size() : end;
            return token;
        }
        const std::string_view rest = doc.substr(at_);
        std::string_view terminator;
        if (rest.starts_with("<!--")) {
            terminator = "-->";
        } else if (rest.starts_with("<![CDATA[")) {
            terminator = "]]>";
        } else if (rest.starts_with("<?")) {
            terminator = "?>";
        }
        if (!terminator.empty()) {
            const std::size_t end = doc.find(terminator, at_ + 2);
            if (end == std::string_view::npos) break;
            at_ = end + terminator.size();
            continue;
        }
        if (rest.starts_with("<!")) {
            // A declaration such as DOCTYPE ends at the first '>' outside its [internal subset].
            bool inSubset = false;
            std::size_t i = at_ + 2;
            for (; i < doc.size(); ++i) {
                if (doc[i] == '[') inSubset = true;
                else if (doc[i] == ']') inSubset = false;
                else if (doc[i] == '>' && !inSubset) break;
            }
            if (i >= doc.size()) break;
            at_ = i + 1;
            continue;
        }
        if (rest.starts_with("</")) {
            std::size_t nameEnd = at_ + 2;
            while (nameEnd < doc.size() && isNameChar(doc[nameEnd])) ++nameEnd;
            const std::size_t close = doc.find('>', nameEnd);
            if (close == std::string_view::npos) break;
            Token token{Kind::EndTag, doc.substr(at_ + 2, nameEnd - at_ - 2), {}, false, {}};
            at_ = close + 1;
            if (token.name.empty()) continue;
            return token;
        }
        std::size_t nameEnd = at_ + 1;
        while (nameEnd < doc.size() && isNameChar(doc[nameEnd])) ++nameEnd;
        if (nameEnd == at_ + 1) {
            // A '<' that opens no tag: malformed, read as text.
            Token token{Kind::Text, {}, {}, false, doc.substr(at_, 1)};
            ++at_;
            return token;
        }
        // Attribute values may hold '>' inside their quotes.
        char quote = 0;
        std::size_t close = nameEnd;
        for (; close < doc.size(); ++close) {
            const char c = doc[close];
            if (quote != 0) {
                if (c == quote) quote = 0;
            } else if (c == '"' || c == '\'') {
                quote = c;
            } else if (c == '>') {
                break;
            }
        }
        if (close >= doc.size()) break;
        const bool selfClosing = close > nameEnd && doc[close - 1] == '/';
        const std::size_t attributesEnd = selfClosing ? close - 1 : close;
        Token token{Kind::StartTag, doc.substr(at_ + 1, nameEnd - at_ - 1),
                    doc.substr(nameEnd, attributesEnd - nameEnd), selfClosing, {}};
        at_ = close + 1;
        return token;
    }
    at_ = doc.size();
    return Token{};
}

std::string_view xmlLocalName(std::string_view name) {
    const std::size_t colon = name.rfind(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

std::optional<std::string> decodeXmlText(std::string_view raw, std::size_t maxChars) {
    std::string out;
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (out.size() >= maxChars) return std::nullopt;
        if (raw[i] == '&') {
            // References are short: looking further for their ';' would make "&&&&..." quadratic.
            const std::size_t length = raw.substr(i + 1, kMaxReferenceChars + 1).find(';');
            if (length != std::string_view::npos) {
                if (const auto c = entity(raw.substr(i + 1, length))) {
                    out.push_back(*c);
                    i += length + 1;
                    continue;
                }
            }
        }
        out.push_back(raw[i]);
    }
    return out;
}

std::optional<std::string_view> xmlAttribute(std::string_view attributes, std::string_view name) {
    std::size_t at = 0;
    while (true) {
        at = skipSpaces(attributes, at);
        if (at >= attributes.size()) return std::nullopt;
        const std::size_t nameStart = at;
        while (at < attributes.size() && isNameChar(attributes[at])) ++at;
        const std::string_view attributeName = attributes.substr(nameStart, at - nameStart);
        at = skipSpaces(attributes, at);
        if (attributeName.empty() || at >= attributes.size() || attributes[at] != '=') return std::nullopt;
        at = skipSpaces(attributes, at + 1);
        if (at >= attributes.size() || (attributes[at] != '"' && attributes[at] != '\'')) return std::nullopt;
        const std::size_t valueEnd = attributes.find(attributes[at], at + 1);
        if (valueEnd == std::string_view::npos) return std::nullopt;
        if (attributeName == name) return attributes.substr(at + 1, valueEnd - at - 1);
        at = valueEnd + 1;
    }
}
