// The window of one open recipe: nine tabs that show its record and pass on what the brewer does.
#pragma once

#include <QWidget>
#include <array>

#include "document/RecipeDocument.h"
#include "document/ui/DocumentBinding.h"

class QScrollArea;
class QTabWidget;

namespace tw {

class RecipeWindow final : public QWidget, private DocumentView {
    Q_OBJECT
  public:
    // All references must live until Detach.
    RecipeWindow(RecipeDocument& document, Platform& platform, DocumentFrame& frame,
                 QWidget* parent = nullptr);
    ~RecipeWindow() override;

    // nullptr after Detach.
    RecipeDocument* Document() const { return binding_.Document(); }
    // Lets go of the document, which is about to go.
    void Detach();

    // Brings a tab to the front, as a click on it does; a refused entry keeps the present one.
    void ShowTab(Tab tab);
    // The control that takes the focus first on the present tab.
    QWidget* FirstField() const;
    // True for a control on the present tab.
    bool IsEditing(const QWidget& control) const;
    // Puts the focus into the first cell of the current row of the tab's grid; nothing on a tab without rows.
    void FocusRow();
    // Commits what is being edited. False when an entry was refused; its box has been shown.
    bool Flush() { return binding_.Flush(); }
    // The colours of the settings are others.
    void GridColorsChanged();

    QSize sizeHint() const override;

  private:
    bool FlushEditors() override { return binding_.Flush(); }
    void TabWanted(Tab tab) override;
    void ControlWanted(const std::string& name) override;
    void HoldRedraw(bool hold) override;
    // Tells the document which control has the focus.
    void FocusMoved(QWidget* now);
    // Ctrl+PageDown, Ctrl+PageUp, and Alt+1 to Alt+9.
    void AddTabKeys();
    // To the next (+1) or previous (-1) tab; nothing behind the last and before the first.
    void StepTab(int step);
    // The contents of a tab are made when it is first shown.
    void BuildTab(int index);
    void TabChosen(int index);

    DocumentBinding binding_;
    QTabWidget* tabs_;
    std::array<QScrollArea*, kTabs> pages_{};
    int shown_ = 0;
};

}  // namespace tw
