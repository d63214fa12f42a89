// A text box of a recipe: every change goes to the document, leaving it or Enter commits, Escape restores. A
// refused entry keeps the focus with its text selected.
#pragma once

#include <QLineEdit>

#include "document/ui/DocumentBinding.h"

namespace tw {

class FieldBox final : public QLineEdit {
    Q_OBJECT
  public:
    // digits: how many digits wide; 0 takes the width that the layout gives. name: the accessible name.
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
    // False for a bad entry.
    bool Commit();

    DocumentBinding& binding_;
    TextBox& box_;  // gone after the binding has let go of the document
    const bool computed_;
    int digits_;
    bool showing_ = false;  // the selection comes from the document
};

}  // namespace tw
