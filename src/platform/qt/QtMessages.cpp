#include "platform/qt/QtMessages.h"

#include <QApplication>
#include <QMessageBox>
#include <QStyle>

#include "platform/qt/QtText.h"

namespace tw {
namespace {

// The core ends a line of a message with "\r\n".
QString Lines(std::string_view text) {
    return ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

void Prepare(QMessageBox& box, std::string_view title, std::string_view text) {
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setWindowTitle(ToQt(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(Lines(text));
}

}  // namespace

void QtMessages::ShowMessage(std::string_view title, std::string_view text) {
    QMessageBox box(QApplication::activeWindow());
    Prepare(box, title, text);
    box.setIcon(title.find("Error") == title.npos ? QMessageBox::Information : QMessageBox::Warning);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

Answer QtMessages::Ask(std::string_view title, std::string_view text, Question kind) {
    const bool canCancel = kind == Question::YesNoCancel;
    QMessageBox box(QApplication::activeWindow());
    Prepare(box, title, text);
    box.setIcon(QMessageBox::Question);
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    if (canCancel) box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Yes);
    // Without this a question of two buttons could not be left by Escape.
    box.setEscapeButton(canCancel ? QMessageBox::Cancel : QMessageBox::No);
    switch (box.exec()) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Answer::No;
    }
}

void QtMessages::Beep() {
    QApplication::beep();
}

}  // namespace tw
