#pragma once
// Sentences from patterns with numbered places ("Trip %1 of %2"), so that the words and their
// order can come from elsewhere (the user interface's language) while the numbers come from here.

#include <initializer_list>
#include <string>
#include <string_view>

// Replaces %1 to %9 with the values in order, in one pass: a value that holds "%2" stays as it is.
// A place without a value, and any other '%', are kept literally.
std::string fillPhrase(std::string_view pattern, std::initializer_list<std::string_view> values);
