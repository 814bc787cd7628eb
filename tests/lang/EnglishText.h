#pragma once
// Whether a text shown in a translated window was left in English.

#include <QSet>
#include <QString>

// The words of the English window, lower case: what a Latin-script language must not show.
using EnglishVocabulary = QSet<QString>;

void addWords(EnglishVocabulary& vocabulary, const QString& text);

// In Chinese and Japanese, any run of ASCII letters that is not a name, unit, format or key; in
// Vietnamese, which writes many words in plain ASCII, any such run that is an English word of
// the window (and not a Vietnamese word spelled alike).
bool readsEnglish(const QString& text, const QString& language, const EnglishVocabulary& english);
