// The notes of a recipe: text of many lines. Leaving it commits, Escape restores.
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
    // The record's place of a place in the widget, and the other way round.
    int PlaceInRecord(int place) const;
    int PlaceInWidget(int place) const;
    bool Commit();

    DocumentBinding& binding_;
    TextBox& box_;
    bool showing_ = false;  // the text comes from the document, not from the keyboard
};

}  // namespace tw
