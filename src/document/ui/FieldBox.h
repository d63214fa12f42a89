// A text box of a recipe. Passes every change of the text to the document; leaving the box or pressing Enter
// commits, and Escape restores. A refused entry keeps the focus, with its text selected.
#pragma once

#include <QLineEdit>

#include "document/ui/DocumentBinding.h"

namespace tw {

class FieldBox final : public QLineEdit {
    Q_OBJECT
  public:
    // digits: the width of the box in digits; 0 lets the layout decide. name: the accessible name.
    FieldBox(DocumentBinding& binding, TextBox& box, const QString& name, int digits, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    TextBox& Box() const { return box_; }

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void ShowText();
    void ShowSelection();
    void TellSelection();
    void LookComputed();
    // Passes what the brewer has typed to the document.
    void TakeText(const QString& edited);
    // False if the entry was refused.
    bool Commit();

    DocumentBinding& binding_;
    TextBox& box_;  // dangling once the binding is detached
    const bool computed_;
    const bool quantity_;  // the text means a number
    int digits_;
    bool showing_ = false;  // true while the selection is copied from or to the document
};

}  // namespace tw
