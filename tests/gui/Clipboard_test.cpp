// The clipboard that the windows share with the other programs of the desktop.
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <gtest/gtest.h>

#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtText.h"

namespace tw::test {
namespace {

const QMimeData& Offered() {
    return *QGuiApplication::clipboard()->mimeData();
}

TEST(DesktopClipboard, OffersABlockAsTextAsATableAndTabSeparated) {
    QtClipboard().SetText("Pale & Co\t8 lb\rRye\t<1>\r");
    EXPECT_EQ(FromQt(Offered().text()), "Pale & Co\t8 lb\nRye\t<1>\n");
    EXPECT_EQ(Offered().data(QStringLiteral("text/tab-separated-values")),
              QByteArray("Pale & Co\t8 lb\nRye\t<1>\n"));
    EXPECT_EQ(FromQt(Offered().html()),
              "<table><tr><td>Pale &amp; Co</td><td>8 lb</td></tr>"
              "<tr><td>Rye</td><td>&lt;1&gt;</td></tr></table>");
}

TEST(DesktopClipboard, OffersNotesAsPlainLines) {
    QtClipboard().SetText("first\tline\r\nsecond");
    EXPECT_EQ(FromQt(Offered().text()), "first\tline\nsecond");
    EXPECT_FALSE(Offered().hasHtml());
    QtClipboard().SetText("one word");
    EXPECT_FALSE(Offered().hasHtml());
}

TEST(DesktopClipboard, ReadsTheLineEndsOfEveryProgram) {
    for (const char* const text : {"a\nb\n", "a\r\nb\r\n", "a\rb\r"}) {
        QGuiApplication::clipboard()->setText(QLatin1String(text));
        EXPECT_EQ(QtClipboard().Text(), "a\r\nb\r\n");
    }
    EXPECT_TRUE(QtClipboard().HasText());
}

}  // namespace
}  // namespace tw::test
