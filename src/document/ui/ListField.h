// A list of the record in which typing finds an entry by its names. Only an entry can be chosen: any other
// text is replaced by the selected entry.
#pragma once

#include <QComboBox>
#include <functional>

#include "document/ui/DocumentBinding.h"
#include "document/ui/NamePopup.h"

namespace tw {

class ListField final : public QComboBox {
    Q_OBJECT
  public:
    // select is called with the index of the entry that was chosen. namesOf returns the names of the entries,
    // in their order.
    ListField(DocumentBinding& binding, const ListBox& list, const QString& name, QWidget* parent,
              std::function<void(RecipeDocument&, int)> select,
              std::function<NameList(const RecipeDocument&)> namesOf);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    void ShowList();
    void Choose(int index);
    // Handles the keys of the open list of names.
    bool HandleNameKey(const QKeyEvent& key);
    // True for the drop-down list and the context menu of the text.
    bool IsOwnPopup(const QWidget& popup) const;
    // True if the focus moves to a widget from which it may not return.
    bool IsLeft(const QFocusEvent& event) const;
    bool GoesToOwnPopup(const QFocusEvent& event) const;
    bool GoesToAnotherProgram(const QFocusEvent& event) const;
    // Chooses the entry that the typed text can only mean; if there is none, shows the present entry again.
    void Settle();
    void TellUnknown(const QString& text);

    DocumentBinding& binding_;
    const ListBox& list_;
    std::function<void(RecipeDocument&, int)> select_;
    NamePopup* names_;
};

}  // namespace tw
