#include "TileUrlTemplate.h"

#include "TileSource.h"

#include <QUrl>

std::optional<TileUrlProblem> checkTileUrlTemplate(const QString& urlTemplate) {
    const QString text = urlTemplate.trimmed();
    if (text.isEmpty()) return TileUrlProblem::Empty;
    if (!text.startsWith(QLatin1String("http://"), Qt::CaseInsensitive) &&
        !text.startsWith(QLatin1String("https://"), Qt::CaseInsensitive))
        return TileUrlProblem::NotHttp;
    for (const char* placeholder : {"{z}", "{x}", "{y}"}) {
        if (!text.contains(QLatin1String(placeholder))) return TileUrlProblem::MissingPlaceholder;
    }
    // Judged with a tile's numbers in it: the braces themselves are not allowed in a URL's host.
    const QUrl sample(tileUrl(text, TileId{1, 1, 1}), QUrl::StrictMode);
    if (!sample.isValid() || sample.host().isEmpty() || text.contains(QLatin1Char(' ')))
        return TileUrlProblem::NotAUrl;
    return std::nullopt;
}
