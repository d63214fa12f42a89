#include "platform/qt/QtMessages.h"

#include <QApplication>
#include <QMessageBox>
#include <QStyle>

#include "platform/qt/QtText.h"

namespace tw {
namespace {

// Returns a text of the core, whose lines end with "\r\n", for display.
QString Lines(std::string_view text) {
    // A file name may be longer than the screen is wide, and the buttons below must stay visible.
    constexpr qsizetype kLongest = 600;
    return CutLines(ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")), kLongest);
}

void Prepare(QMessageBox& box, std::string_view title, std::string_view text) {
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setWindowTitle(ToQt(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(Lines(text));
}

}  // namespace

void QtMessages::ShowMessage(std::string_view title, std::string_view text) {
    ShowMessageWithAdvice(title, text, {});
}

void QtMessages::ShowMessageWithAdvice(std::string_view title, std::string_view text,
                                       std::string_view advice) {
    QMessageBox box(QApplication::activeWindow());
    Prepare(box, title, text);
    // QMessageBox's own informative text would interpret a file name as markup.
    if (!advice.empty()) box.setText(Lines(text) + QStringLiteral("\n\n") + Lines(advice));
    box.setIcon(title.find("Error") == title.npos ? QMessageBox::Information : QMessageBox::Warning);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

Answer QtMessages::Ask(std::string_view title, std::string_view text, Question kind) {
    QMessageBox box(QApplication::activeWindow());
    Prepare(box, title, text);
    box.setIcon(QMessageBox::Question);
    const bool isYesNo = kind != Question::OkCancel;
    box.setStandardButtons(isYesNo ? QMessageBox::Yes | QMessageBox::No
                                   : QMessageBox::Ok | QMessageBox::Cancel);
    if (kind == Question::YesNoCancel) box.addButton(QMessageBox::Cancel);
    // A YesNo question asks before deleting, overwriting or discarding: Enter alone must not do that.
    box.setDefaultButton(kind == Question::YesNo      ? QMessageBox::No
                         : kind == Question::OkCancel ? QMessageBox::Ok
                                                      : QMessageBox::Yes);
    // Without an escape button, a Yes/No box could not be closed with Escape.
    const bool closesWithNo = ClosingAnswer(kind) == Answer::No;
    box.setEscapeButton(closesWithNo ? QMessageBox::No : QMessageBox::Cancel);
    switch (box.exec()) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::Ok:
            return Answer::Ok;
        case QMessageBox::No:
            return Answer::No;
        default:
            return ClosingAnswer(kind);
    }
}

void QtMessages::Beep() {
    QApplication::beep();
}

}  // namespace tw
