// Tests of message boxes and tool tips: what Enter does, and names that are longer than a
// screen or look like markup.
#include <QMessageBox>
#include <QTimer>

#include "GuiTest.h"
#include "platform/qt/QtMessages.h"
#include "tree/ui/ListPaneModel.h"

namespace tw {
namespace {

// Presses Enter in the next message box and stores its text in shown.
void EnterInBox(QString& shown) {
    QTimer::singleShot(0, qApp, [&shown] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        shown = box->text();
        QTest::keyClick(box, Qt::Key_Return);
    });
}

TEST(Messages, EnterAloneDoesNotDelete) {
    QtMessages boxes;
    QString shown;
    EnterInBox(shown);
    EXPECT_EQ(boxes.Ask("Confirm Delete", "Are you sure?", Question::YesNo), Answer::No);
    EXPECT_EQ(shown, QStringLiteral("Are you sure?"));
}

TEST(Messages, EnterSavesWhatHasChanged) {
    QtMessages boxes;
    QString shown;
    EnterInBox(shown);
    EXPECT_EQ(boxes.Ask("Unsaved Changes", "Save?", Question::YesNoCancel), Answer::Yes);
}

TEST(Messages, EnterTakesTheUsualAnswerWhereNothingIsLost) {
    QtMessages boxes;
    QString shown;
    EnterInBox(shown);
    EXPECT_EQ(boxes.Ask("Keep the Carbonation?", "Keep it?", Question::YesIsUsual), Answer::Yes);
}

TEST(Messages, AdviceStandsBelowTheTextAsItIsWritten) {
    QtMessages boxes;
    QString shown;
    EnterInBox(shown);
    boxes.ShowMessageWithAdvice("Error", "Could not create", "'<b>' is a folder.");
    EXPECT_EQ(shown, QStringLiteral("Could not create\n\n'<b>' is a folder."));
    EnterInBox(shown);
    boxes.ShowMessageWithAdvice("Error", "Could not create", "");
    EXPECT_EQ(shown, QStringLiteral("Could not create"));
}

TEST(Messages, AVeryLongNameIsCutInTheMiddleOfItsLine) {
    QtMessages boxes;
    QString shown;
    EnterInBox(shown);
    boxes.ShowMessage("Error", "First\r\n" + std::string(10000, 'a') + "z");
    const QStringList lines = shown.split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], QStringLiteral("First"));
    EXPECT_LT(lines[1].size(), 700);
    EXPECT_TRUE(lines[1].startsWith(QLatin1Char('a')));
    EXPECT_TRUE(lines[1].endsWith(QLatin1Char('z')));
}

TEST(Tips, ANameThatLooksLikeMarkupIsShownAsItIs) {
    ListTable list;
    list.SetColumns({{"Name"}});
    ListRow row;
    row.cells = {"<b>Ale</b>"};
    list.SetRows({row});
    const ListPaneModel model(list, nullptr);
    const QString tip = model.data(model.index(0, 0), Qt::ToolTipRole).toString();
    EXPECT_TRUE(tip.contains(QStringLiteral("&lt;b&gt;Ale"))) << tip.toStdString();
}

}  // namespace
}  // namespace tw
