#include "platform/qt/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QStringList>

#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr const char* kTabSeparated = "text/tab-separated-values";

// Returns text with the line ends of this desktop.
QString WithLineFeeds(QString text) {
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

// True for a block of cells: its rows end with a carriage return alone.
bool IsBlock(const QString& text) {
    return !text.contains(QLatin1Char('\n')) &&
           (text.contains(QLatin1Char('\t')) || text.endsWith(QLatin1Char('\r')));
}

QString HtmlOf(const QString& block) {
    QString html = QStringLiteral("<table>");
    QStringList rows = block.split(QLatin1Char('\r'));
    if (rows.last().isEmpty()) rows.removeLast();
    for (const QString& row : rows) {
        html += QLatin1String("<tr>");
        for (const QString& cell : row.split(QLatin1Char('\t')))
            html += QLatin1String("<td>") + cell.toHtmlEscaped() + QLatin1String("</td>");
        html += QLatin1String("</tr>");
    }
    return html + QLatin1String("</table>");
}

}  // namespace

bool QtClipboard::HasText() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText();
}

std::string QtClipboard::Text() {
    QString text = WithLineFeeds(QGuiApplication::clipboard()->text());
    return FromQt(text.replace(QLatin1Char('\n'), QLatin1String("\r\n")));
}

void QtClipboard::SetText(std::string_view text) {
    const QString own = ToQt(text);
    const QString plain = WithLineFeeds(own);
    auto* data = new QMimeData;
    data->setText(plain);
    if (IsBlock(own)) {
        data->setData(QLatin1String(kTabSeparated), plain.toUtf8());
        data->setHtml(HtmlOf(own));
    }
    QGuiApplication::clipboard()->setMimeData(data);
}

}  // namespace tw
