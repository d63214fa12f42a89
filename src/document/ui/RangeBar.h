// A thin bar that shows where a figure is in the range of its style: the range as a band, and the figure as a
// diamond in it or, outside it, as an arrow that points away from the range.
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

    // Shows a range and a figure, given by their texts as displayed. Without a range nothing is painted;
    // without a figure only the band is.
    void Show(std::string_view rangeLabel, std::string_view figureText);
    // Returns "within the style's range", "below ...", "above ..."; empty without a range or a figure.
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

// Makes screen readers treat the bars as indicators. To be called once.
void InstallRangeBarAccessibility();

}  // namespace tw
