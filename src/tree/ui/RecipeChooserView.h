// The widget in which recipes are added from the tree to an ordered list.
#pragma once

#include <QWidget>
#include <map>
#include <string>

#include "tree/RecipeChooser.h"

class QBoxLayout;
class QLabel;
class QListWidget;
class QPushButton;

namespace tw {

class TreePane;

class RecipeChooserView final : public QWidget, private RecipeChooserObserver {
    Q_OBJECT
  public:
    // REQUIRES: chooser outlives the widget.
    RecipeChooserView(RecipeChooser& chooser, QWidget* parent);
    ~RecipeChooserView() override;

  signals:
    // The recipes in the list, or their order, have changed.
    void SelectionChanged();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void RecipeChooserChanged() override;
    void AddTree(QBoxLayout& row);
    void AddList(QBoxLayout& row);
    QPushButton* AddButton(QBoxLayout& column, const char* name, const QString& caption, const QString& tip);
    void ShowButtons();
    void ShowPopup(const QPoint& place);
    void AddChosen();

    RecipeChooser& chooser_;
    TreePane* tree_ = nullptr;
    QLabel* caption_ = nullptr;
    QListWidget* list_ = nullptr;
    std::map<std::string, QPushButton*> buttons_;
};

}  // namespace tw
