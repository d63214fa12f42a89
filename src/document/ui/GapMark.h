// A quiet mark beside a name or a figure that lacks something. Its tip says what.
#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

class QPainter;

namespace tw {

class DocumentBinding;

// Returns the width that the mark takes beside a text of that font, in pixels.
int GapMarkWidth(const QFontMetrics& metrics);
// Paints the mark at the right end of a rectangle, as high as a capital of the painter's font. Returns the
// width that it takes, in pixels.
int PaintGapMark(QPainter& painter, const QRect& place, const QPalette& palette);

// The mark beside a figure; it takes no room while the figure lacks nothing.
class GapMark final : public QWidget {
    Q_OBJECT
  public:
    // what: the figure's name, for screen readers. reasons returns what the figure lacks; it is called again
    // after changes of the recipe.
    GapMark(DocumentBinding& binding, QString what, std::function<std::vector<std::string>()> reasons,
            QWidget* parent);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    void Show();

    QString what_;
    std::function<std::vector<std::string>()> reasons_;
    bool waiting_ = false;  // Show will be called after the current event
};

}  // namespace tw
