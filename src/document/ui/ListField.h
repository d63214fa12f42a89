// A list of the record in which typing any part of an entry's text finds it. Only an entry can be chosen: any
// other text is replaced by the selected entry.
#pragma once

#include <QComboBox>
#include <functional>

#include "document/ui/DocumentBinding.h"

namespace tw {

class ListField final : public QComboBox {
    Q_OBJECT
  public:
    // select is called with the index of the entry that was chosen. entryOf returns the index of the entry
    // that a typed text names, or -1.
    ListField(DocumentBinding& binding, const ListBox& list, const QString& name, QWidget* parent,
              std::function<void(RecipeDocument&, int)> select,
              std::function<int(const RecipeDocument&, std::string_view)> entryOf);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void ShowList();
    void Choose(int index);
    int TypedEntry() const;
    // True for the list of matches, the drop-down list and the context menu of the text.
    bool IsOwnPopup(const QWidget& popup) const;
    // True if the focus moves to a widget from which it may not return.
    bool IsLeft(const QFocusEvent& event) const;
    bool GoesToOwnPopup(const QFocusEvent& event) const;
    bool GoesToAnotherProgram(const QFocusEvent& event) const;
    // Chooses the entry that was typed; if there is none, shows the present entry again.
    void Settle();

    DocumentBinding& binding_;
    const ListBox& list_;
    std::function<void(RecipeDocument&, int)> select_;
    std::function<int(const RecipeDocument&, std::string_view)> entryOf_;
};

}  // namespace tw
