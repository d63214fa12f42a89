// The notes of a recipe: text of several lines. Leaving the box commits, Escape restores.
#pragma once

#include <QPlainTextEdit>

#include "document/ui/DocumentBinding.h"

namespace tw {

class NotesBox final : public QPlainTextEdit {
    Q_OBJECT
  public:
    NotesBox(DocumentBinding& binding, TextBox& box, const QString& name, QWidget* parent);

    TextBox& Box() const { return box_; }

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void ShowText();
    void ShowSelection();
    void TellSelection();
    // Convert positions between the widget (in UTF-16 units, with "\n" as the line end) and the record (in
    // code points, with "\r\n").
    int PlaceInRecord(int place) const;
    int PlaceInWidget(int place) const;
    bool Commit();

    DocumentBinding& binding_;
    TextBox& box_;
    bool showing_ = false;  // true while text or selection is copied from or to the document
};

}  // namespace tw
