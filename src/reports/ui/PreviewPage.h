// One page of the print preview, as it would come out on white paper.
#pragma once

#include <QWidget>

#include "reports/PrintPreviewModel.h"

namespace tw {

class PreviewPage final : public QWidget {
    Q_OBJECT
  public:
    // The model must outlive the widget.
    PreviewPage(const PrintPreviewModel& model, QWidget* parent);

    // Takes the size of the model's zoom; room is what the window has for the whole page.
    void Fit(const QSize& room);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    // The sheet within the widget, which leaves room for the shadow around it.
    QRectF Sheet() const;

    const PrintPreviewModel& model_;
};

}  // namespace tw
