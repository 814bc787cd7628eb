#pragma once
// Text for XML element content and double-quoted attributes.

#include <string>
#include <string_view>

// Escapes markup characters and writes tab, line feed and carriage return as character
// references so they survive attribute normalisation. Characters that XML 1.0 cannot carry at all
// (other control characters, invalid UTF-8, U+FFFE, U+FFFF) become U+FFFD.
void appendXmlEscaped(std::string& out, std::string_view text);

std::string xmlEscaped(std::string_view text);
