// Conversions between texts of the core (UTF-8) and of Qt (UTF-16).
#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <string_view>

namespace tw {

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string FromQt(const QString& text) {
    return text.toStdString();
}

// Shortens each line longer than longest, in UTF-16 units, by replacing its middle with " … ".
inline QString CutLines(const QString& text, qsizetype longest) {
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString& line : lines)
        if (line.size() > longest)
            line = line.left(longest / 2) + QStringLiteral(" \u2026 ") + line.right(longest / 2);
    return lines.join(QLatin1Char('\n'));
}

// Convert positions in a text: the core counts code points, Qt counts UTF-16 units. A position beyond the end
// of the text becomes its end.
inline int CodePointPlace(const QString& text, int unit) {
    return static_cast<int>(QStringView(text).left(unit).toUcs4().size());
}
inline int UnitPlace(const QString& text, int codePoint) {
    int unit = 0;
    for (; codePoint > 0 && unit < text.size(); --codePoint)
        unit += text[unit].isHighSurrogate() && unit + 1 < text.size() ? 2 : 1;
    return unit;
}

}  // namespace tw
