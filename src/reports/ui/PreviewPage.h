// Shows one page of the print preview as it would look on white paper.
#pragma once

#include <QWidget>

#include "reports/PrintPreviewModel.h"

namespace tw {

class PreviewPage final : public QWidget {
    Q_OBJECT
  public:
    // The model must outlive the widget.
    PreviewPage(const PrintPreviewModel& model, QWidget* parent);

    // Resizes the widget to the model's zoom. room is the space in the window, in pixels, for showing a
    // whole page.
    void Fit(const QSize& room);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    // Returns the rectangle of the sheet, which leaves a margin for its shadow within the widget.
    QRectF Sheet() const;

    const PrintPreviewModel& model_;
};

}  // namespace tw
