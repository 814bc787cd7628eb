#include "EnglishText.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

// The same in every language: units, formats, names, and the keys printed on the keyboard.
const QSet<QString>& allowedWords() {
    static const QSet<QString> words = {
        // units and formats
        QStringLiteral("KM"), QStringLiteral("MPH"), QStringLiteral("km"), QStringLiteral("mi"),
        QStringLiteral("GPX"), QStringLiteral("KML"), QStringLiteral("GeoJSON"), QStringLiteral("CSV"),
        QStringLiteral("PNG"), QStringLiteral("MP4"), QStringLiteral("MPEG"), QStringLiteral("QuickTime"), QStringLiteral("MBTiles"), QStringLiteral("GPS"),
        QStringLiteral("URL"), QStringLiteral("LED"), QStringLiteral("OK"), QStringLiteral("MB"), QStringLiteral("http"), QStringLiteral("https"),
        QStringLiteral("HH"), QStringLiteral("MM"),  // "±HH:MM", how a clock correction is typed
        // names
        QStringLiteral("Dashtrack"), QStringLiteral("OpenStreetMap"), QStringLiteral("OpenGL"),
        QStringLiteral("Google"), QStringLiteral("Baidu"), QStringLiteral("Qt"), QStringLiteral("libmpv"),
        QStringLiteral("FFmpeg"), QStringLiteral("libplist"), QStringLiteral("DSEG"), QStringLiteral("LGPL"),
        QStringLiteral("ODbL"),
        // The English item of the Language menu names itself, for those who cannot read the others.
        QStringLiteral("English"),
        // keys
        QStringLiteral("Ctrl"), QStringLiteral("Shift"), QStringLiteral("Alt"), QStringLiteral("Space"),
        QStringLiteral("Left"), QStringLiteral("Right"), QStringLiteral("Up"), QStringLiteral("Down"),
        QStringLiteral("Backspace"), QStringLiteral("Escape"), QStringLiteral("Home"), QStringLiteral("End"),
    };
    return words;
}

// Names of several words.
const QStringList& allowedPhrases() {
    static const QStringList phrases = {QStringLiteral("SIL Open Font License")};
    return phrases;
}

// Plain-ASCII Vietnamese words that are English words too.
const QSet<QString>& vietnameseWords() {
    static const QSet<QString> words = {
        QStringLiteral("to"),     // "Phóng to": zoom in
        QStringLiteral("video"),  // "Trình kết xuất video": video renderer
    };
    return words;
}

QStringList asciiWords(QString text) {
    for (const QString& phrase : allowedPhrases()) text.remove(phrase);
    // Addresses, as examples of what to type: "https://tile.example.org/{z}/{x}/{y}.png".
    static const QRegularExpression address(QStringLiteral("https?://\\S+"));
    text.remove(address);
    // File name patterns of filters: "*.mov".
    static const QRegularExpression pattern(QStringLiteral("\\*\\.[A-Za-z0-9]+"));
    text.remove(pattern);
    // A word is a run of letters; one with a letter outside ASCII ("Phát") is no English word.
    static const QRegularExpression word(QStringLiteral("[\\p{L}\\p{M}][\\p{L}\\p{M}0-9]*"));
    QStringList words;
    for (auto it = word.globalMatch(text); it.hasNext();) {
        const QString w = it.next().captured();
        bool ascii = true;
        for (QChar c : w) ascii = ascii && c.unicode() < 128;
        // One letter is a menu's key ("(&F)") or a unit ("s"), never a sentence left untranslated.
        if (ascii && w.size() > 1 && !allowedWords().contains(w)) words.push_back(w);
    }
    return words;
}

}  // namespace

void addWords(EnglishVocabulary& vocabulary, const QString& text) {
    for (const QString& w : asciiWords(text)) vocabulary.insert(w.toLower());
}

bool readsEnglish(const QString& text, const QString& language, const EnglishVocabulary& english) {
    const QStringList words = asciiWords(text);
    if (language != QLatin1String("vi")) return !words.isEmpty();
    for (const QString& w : words) {
        const QString lower = w.toLower();
        if (english.contains(lower) && !vietnameseWords().contains(lower)) return true;
    }
    return false;
}
