#include "reports/qt/QtPrinterDevice.h"

#include <QPageLayout>
#include <QPdfWriter>
#include <utility>

#include "platform/qt/QtText.h"
#include "reports/qt/PaperPainter.h"

namespace tw {

QPageLayout PdfPage(Paper paper) {
    return {QPageSize(paper == Paper::A4 ? QPageSize::A4 : QPageSize::Letter), QPageLayout::Portrait,
            QMarginsF(kPaperEdge, kPaperEdge, kPaperEdge, kPaperEdge), QPageLayout::Inch};
}

QtPrinterDevice::QtPrinterDevice(std::shared_ptr<QPrinter> printer)
    : printer_(std::move(printer)), paper_(printer_) {}

QtPrinterDevice::QtPrinterDevice(TargetFile target, const QPageLayout& page)
    : target_(std::move(target)), filePage_(std::make_unique<QPageLayout>(page)) {}

QtPrinterDevice::~QtPrinterDevice() {
    Close();
}

void QtPrinterDevice::MakePaper() {
    content_.open(QIODevice::WriteOnly);
    auto writer = std::make_shared<QPdfWriter>(&content_);
    writer->setPageLayout(*filePage_);
    writer->setResolution(kPaperDpi);
    writer->setCreator(QStringLiteral("Tunwright"));
    paper_ = writer;
}

bool QtPrinterDevice::StartDoc(const std::string& name) {
    if (target_) MakePaper();
    if (printer_)
        printer_->setDocName(ToQt(name));
    else
        static_cast<QPdfWriter&>(*paper_).setTitle(ToQt(name));
    if (!painter_.begin(paper_.get())) return false;
    SetPaperColor(painter_, {0, 0, 0}, Dpi());
    return true;
}

bool QtPrinterDevice::StartPage() {
    // The document starts with its first page.
    return ++pages_ == 1 || paper_->newPage();
}

bool QtPrinterDevice::EndDoc() {
    if (!painter_.end()) return false;
    if (printer_) return printer_->printerState() != QPrinter::Error;
    const QByteArray& content = content_.buffer();
    target_->Replace({content.constData(), static_cast<std::size_t>(content.size())});
    return true;
}

bool QtPrinterDevice::AbortDoc() {
    if (printer_ && painter_.isActive()) printer_->abort();
    return true;
}

bool QtPrinterDevice::Close() {
    if (painter_.isActive()) painter_.end();
    return true;
}

double QtPrinterDevice::Dpi() const {
    return paper_->logicalDpiX();
}

PrintSize QtPrinterDevice::PageSize() const {
    const QRectF area = paper_->pageLayout().paintRect(QPageLayout::Inch);
    return {area.width(), area.height()};
}

bool QtPrinterDevice::SetTextColor(Rgb color) {
    SetPaperColor(painter_, color, Dpi());
    return true;
}

bool QtPrinterDevice::MakeFont(const PrintFont& font) {
    painter_.setFont(PaperFont(font, Dpi()));
    return painter_.isActive();
}

bool QtPrinterDevice::MakeBrush(Rgb color) {
    return SetTextColor(color);
}

bool QtPrinterDevice::MakePen(Rgb color) {
    return SetTextColor(color);
}

bool QtPrinterDevice::TextSize(std::string_view text, PrintSize& size) {
    size = PaperTextSize(painter_.font(), text, Dpi());
    return painter_.isActive();
}

bool QtPrinterDevice::TextOut(std::string_view text, double x, double y) {
    DrawPaperText(painter_, text, x, y, Dpi());
    return painter_.isActive();
}

bool QtPrinterDevice::MoveTo(double x, double y) {
    x_ = x;
    y_ = y;
    return true;
}

bool QtPrinterDevice::LineTo(double x, double y) {
    DrawPaperLine(painter_, x_, y_, x, y, Dpi());
    return MoveTo(x, y) && painter_.isActive();
}

bool QtPrinterDevice::Rectangle(double x1, double y1, double x2, double y2) {
    DrawPaperBox(painter_, x1, y1, x2, y2, Dpi());
    return painter_.isActive();
}

}  // namespace tw
