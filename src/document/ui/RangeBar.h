// A thin bar that shows where in its style's range a figure lies: the range as a band, the figure as a
// diamond in it, or as an arrow that points the way when the figure lies outside.
#pragma once

#include <QWidget>
#include <optional>
#include <string_view>

#include "document/StyleRange.h"

namespace tw {

class RangeBar final : public QWidget {
    Q_OBJECT
  public:
    // what: the figure's name, such as "Original Gravity".
    explicit RangeBar(const QString& what, QWidget* parent = nullptr);

    // Both texts as shown. Without a range nothing is painted; without a figure the band alone.
    void Show(std::string_view rangeLabel, std::string_view figureText);
    // "within the style's range", "below ...", "above ...", or empty.
    QString Verdict() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    QString what_;
    std::optional<StyleRange> range_;
    std::optional<double> figure_;
};

// Makes the bars known to assistive programs as indicators. Called once.
void InstallRangeBarAccessibility();

}  // namespace tw
