// A print job on a printer or into a PDF file, with Qt.
#pragma once

#include <QBuffer>
#include <QPainter>
#include <QPrinter>
#include <memory>
#include <optional>
#include <string>

#include "platform/TargetFile.h"
#include "reports/Paper.h"
#include "reports/PrinterDevice.h"

class QPageLayout;
class QPagedPaintDevice;

namespace tw {

class QtPrinterDevice final : public PrinterDevice {
  public:
    // Prints on that printer, with its page and resolution.
    explicit QtPrinterDevice(std::shared_ptr<QPrinter> printer);
    // Writes a PDF file. An older file stays until the document has ended successfully.
    QtPrinterDevice(TargetFile target, const QPageLayout& page);
    ~QtPrinterDevice() override;

    bool StartDoc(const std::string& name) override;
    bool StartPage() override;
    bool EndPage() override { return true; }
    bool EndDoc() override;
    bool AbortDoc() override;
    bool Close() override;
    int LastError() const override { return 0; }
    PrintSize PageSize() const override;
    bool SetTextColor(Rgb color) override;
    bool MakeFont(const PrintFont& font) override;
    bool MakeBrush(Rgb color) override;
    bool MakePen(Rgb color) override;
    bool SelectObjects() override { return true; }
    bool TextSize(std::string_view text, PrintSize& size) override;
    bool TextOut(std::string_view text, double x, double y) override;
    bool MoveTo(double x, double y) override;
    bool LineTo(double x, double y) override;
    bool Rectangle(double x1, double y1, double x2, double y2) override;

  private:
    void MakePaper();
    double Dpi() const;

    std::shared_ptr<QPrinter> printer_;  // nullptr for a PDF file
    std::optional<TargetFile> target_;   // none for a printer
    QBuffer content_;                    // of the PDF file; outlives the paper
    std::unique_ptr<QPageLayout> filePage_;
    std::shared_ptr<QPagedPaintDevice> paper_;
    QPainter painter_;
    double x_ = 0, y_ = 0;
    int pages_ = 0;
};

// Returns the page of a PDF file on that paper.
QPageLayout PdfPage(Paper paper);

}  // namespace tw
