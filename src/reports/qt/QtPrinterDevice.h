// A print job on a printer, or into a PDF file, by Qt.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <QSaveFile>
#include <memory>
#include <string>

#include "reports/Paper.h"
#include "reports/PrinterDevice.h"

class QPageLayout;
class QPagedPaintDevice;

namespace tw {

class QtPrinterDevice final : public PrinterDevice {
  public:
    // A job on that printer, with its page and its resolution.
    explicit QtPrinterDevice(std::shared_ptr<QPrinter> printer);
    // A PDF file. What was there before stays until the document has ended well.
    QtPrinterDevice(const QString& path, const QPageLayout& page);
    ~QtPrinterDevice() override;

    bool StartDoc(const std::string& name) override;
    bool StartPage() override;
    bool EndPage() override { return true; }
    bool EndDoc() override;
    bool AbortDoc() override;
    bool Close() override;
    // Of a file the number of its device's error, 0 where nothing is known.
    int LastError() const override { return error_; }
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
    bool OpenFile();
    double Dpi() const;

    std::shared_ptr<QPrinter> printer_;  // nullptr for a file
    std::unique_ptr<QSaveFile> file_;    // nullptr for a printer; outlives the paper
    std::unique_ptr<QPageLayout> filePage_;
    std::shared_ptr<QPagedPaintDevice> paper_;
    QPainter painter_;
    double x_ = 0, y_ = 0;
    int pages_ = 0;
    int error_ = 0;
};

// The page of a PDF file on that paper.
QPageLayout PdfPage(Paper paper);

}  // namespace tw
