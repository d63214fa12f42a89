// The window of the explorer: a tree with a list beside it for the recipes, and another pair for the styles.
#pragma once

#include <QDialog>
#include <array>
#include <map>
#include <string>

#include "tree/BrowseView.h"
#include "tree/ExplorerModel.h"

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSplitter;
class QStackedWidget;

namespace tw {

class NodeListPane;
class TreePane;

class ExplorerWindow final : public QDialog {
    Q_OBJECT
  public:
    // settings contains how the window was last left. REQUIRES: model and settings outlive the window.
    ExplorerWindow(ExplorerModel& model, SettingsPort& settings, QWidget* parent);
    ~ExplorerWindow() override;

  protected:
    void done(int result) override;
    void showEvent(QShowEvent* event) override;
    void reject() override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    using Page = ExplorerModel::Page;
    struct PageWidgets {
        QSplitter* splitter = nullptr;
        TreePane* tree = nullptr;
        NodeListPane* list = nullptr;
    };

    QLayout* MakePageRow();
    QLayout* MakeCommandRow();
    QLayout* MakeBottomRow();
    void MakePage(Page page);
    // Brings the model, or the widgets, into the state in which the window was last left.
    void RestoreModel();
    void RestoreTreeWidth();
    void FitTreeWidth();
    // Updates view_ from the model.
    void ReadView();
    void KeepView();
    void ConnectTree(Page page, PageWidgets& widgets);
    void ConnectList(PageWidgets& widgets);
    QRadioButton* AddOption(QBoxLayout& row, const char* name, const QString& caption, Page page);
    void AddKey(QWidget& widget, const QKeySequence& key, PopupCommand command);
    PageWidgets& Shown() { return pages_[static_cast<std::size_t>(model_.Shown())]; }

    void ShowPage(Page page);
    void Run(PopupChoice choice);
    bool AboutRows();
    void DeleteOrRename(PopupCommand listCommand, PopupCommand treeCommand);
    // Called when the editor of a name has closed.
    void EndEdit();
    // Updates the window from the model; closes it if the model is closed.
    void ShowState();
    void ShowListPopup(const QPoint& place);
    void ShowTreePopup(const QPoint& place);
    void SearchFor(const QString& text);

    ExplorerModel& model_;
    SettingsStore settings_;
    BrowseView view_, opened_;  // as it is now, and as it was when the window opened
    std::array<PageWidgets, 2> pages_;
    QStackedWidget* stack_;
    QRadioButton* recipes_ = nullptr;
    QRadioButton* styles_ = nullptr;
    QLineEdit* find_;
    QLabel* status_;
    std::map<std::string, QPushButton*> buttons_;
    bool showing_ = false;
};

}  // namespace tw
