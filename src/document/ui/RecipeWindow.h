// The window of one open recipe: nine tabs that display its record and pass on what the brewer does.
#pragma once

#include <QWidget>
#include <array>

#include "document/RecipeDocument.h"
#include "document/ui/DocumentBinding.h"

class QScrollArea;
class QTabWidget;

namespace tw {

class FigureStrip;

class RecipeWindow final : public QWidget, private DocumentView {
    Q_OBJECT
  public:
    // All references must stay valid until Detach.
    RecipeWindow(RecipeDocument& document, Platform& platform, DocumentFrame& frame,
                 QWidget* parent = nullptr);
    ~RecipeWindow() override;

    // nullptr after Detach.
    RecipeDocument* Document() const { return binding_.Document(); }
    // Disconnects the window from the document, which is about to be destroyed.
    void Detach();

    // Shows a tab, as a click on it does. If an entry is refused, the present tab stays.
    void ShowTab(Tab tab);
    // The control of the present tab that gets the focus first.
    QWidget* FirstField() const;
    // True for a control on the present tab.
    bool IsEditing(const QWidget& control) const;
    // Moves the focus to the first cell of the current row in the tab's grid. Does nothing on a tab
    // without rows.
    void FocusRow();
    // Commits what is being edited. False if an entry was refused; a message has been shown.
    bool Flush() { return binding_.Flush(); }
    // To be called when the colours in the settings have changed.
    void GridColorsChanged();
    // Shows the strip of figures below the tabs, or removes it, as the frame says.
    void ShowStrip();

    QSize sizeHint() const override;

  private:
    bool FlushEditors() override { return binding_.Flush(); }
    void TabWanted(Tab tab) override;
    void ControlWanted(const std::string& name) override;
    void HoldRedraw(bool hold) override;
    // Notifies the document which control has the focus.
    void FocusMoved(QWidget* now);
    // Adds the shortcuts Ctrl+PageDown, Ctrl+PageUp, and Alt+1 to Alt+9.
    void AddTabKeys();
    // Changes to the next (+1) or previous (-1) tab. Does nothing after the last and before the first one.
    void StepTab(int step);
    // Creates the contents of a tab, when it is first shown.
    void BuildTab(int index);
    void TabChosen(int index);
    void YieldKeys();
    // Goes to a figure's box on the first tab. If an entry is refused, the present tab stays.
    void GoToFigure(FieldId figure);

    DocumentBinding binding_;
    QTabWidget* tabs_;
    std::array<QScrollArea*, kTabs> pages_{};
    FigureStrip* strip_ = nullptr;  // nullptr while hidden
    int shown_ = 0;
};

}  // namespace tw
