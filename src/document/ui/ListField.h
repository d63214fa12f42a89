// A list of the record whose entries are found by typing any part of their text. Only an entry counts: any
// other text gives way to the entry that is selected.
#pragma once

#include <QComboBox>
#include <functional>

#include "document/ui/DocumentBinding.h"

namespace tw {

class ListField final : public QComboBox {
    Q_OBJECT
  public:
    // select carries out the choice of an entry; entryOf finds the entry that a typed text names, -1 for
    // none.
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
    // Whether it is the list of matches, the list that drops down, or the menu of the text.
    bool IsOwnPopup(const QWidget& popup) const;
    // Whether the focus goes where it need not come back from.
    bool IsLeft(const QFocusEvent& event) const;
    bool GoesToOwnPopup(const QFocusEvent& event) const;
    bool GoesToAnotherProgram(const QFocusEvent& event) const;
    // What was typed becomes the choice, or the present entry comes back.
    void Settle();

    DocumentBinding& binding_;
    const ListBox& list_;
    std::function<void(RecipeDocument&, int)> select_;
    std::function<int(const RecipeDocument&, std::string_view)> entryOf_;
};

}  // namespace tw
