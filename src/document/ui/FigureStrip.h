// A slim strip with the six figures of a recipe, shown below its tabs whichever is open. A click on a figure,
// or its Alt key, goes to its line on the first tab.
#pragma once

#include <QWidget>
#include <vector>

#include "document/FigureRules.h"

class QShortcut;

namespace tw {

class PageBuilder;

class FigureStrip final : public QWidget {
    Q_OBJECT
  public:
    // The figures are those of the builder's recipe; the strip becomes a child of its page. keys: the widget
    // in which the keys work.
    FigureStrip(PageBuilder& builder, QWidget& keys);

    // Leaves the key of one figure to the tab that is open, whose own label has the same; '\0' for none.
    void YieldKey(char key);

  signals:
    void Wanted(tw::FieldId figure);
    // The brewer has asked to hide all strips.
    void HidingWanted();

  protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Key {
        char letter;
        QShortcut* shortcut;
    };
    void AddKey(const FigureRule& rule, QWidget& keys);

    std::vector<Key> keys_;
};

}  // namespace tw
