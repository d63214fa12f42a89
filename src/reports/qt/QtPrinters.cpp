#include "reports/qt/QtPrinters.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLocale>
#include <QPageLayout>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>

#include "platform/qt/QtText.h"
#include "reports/qt/QtPrinterDevice.h"

namespace tw {
namespace {

using Result = PrinterAnswer::Result;

// Shows the desktop's printer dialog.
Result RunDialog(QPrinter& printer) {
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    dialog.setWindowTitle(QPrintDialog::tr("Print"));
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    AddPreviewButton(dialog);
    const int answer = dialog.exec();
    if (answer == kPreviewResult) return Result::Preview;
    return answer == QDialog::Accepted ? Result::Chosen : Result::Cancelled;
}

}  // namespace

bool AddPreviewButton(QDialog& dialog) {
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    if (!buttons) return false;
    QPushButton* preview = buttons->addButton(QPrintDialog::tr("Pre&view"), QDialogButtonBox::ActionRole);
    preview->setObjectName(QStringLiteral("cmdPreview"));
    preview->setToolTip(QPrintDialog::tr("Shows the pages instead of printing them (Ctrl+Shift+P)"));
    QObject::connect(preview, &QPushButton::clicked, &dialog, [&dialog] { dialog.done(kPreviewResult); });
    return true;
}

// A PDF file that was chosen as the printer is written like any other PDF file, so that a failure is noticed.
std::unique_ptr<PrinterDevice> QtPrinters::DeviceOf(const std::shared_ptr<QPrinter>& printer) const {
    if (printer->outputFormat() != QPrinter::PdfFormat || printer->outputFileName().isEmpty())
        return std::make_unique<QtPrinterDevice>(printer);
    return std::make_unique<QtPrinterDevice>(TargetFile(FromQt(printer->outputFileName()), own_),
                                             printer->pageLayout());
}

PrinterAnswer QtPrinters::ShowPrinterDialog(bool configured, bool quick) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) return {Result::NoPrinter};
    const bool again = configured && !quick && record_;
    const auto printer = again ? record_ : std::make_shared<QPrinter>(QPrinter::HighResolution);
    // If no printer is the default one, the brewer is asked even if quick.
    const bool asks = !quick || QPrinterInfo::defaultPrinter().isNull();
    const Result result = asks ? RunDialog(*printer) : Result::Chosen;
    if (result != Result::Chosen) return {result};
    record_ = printer;
    return {Result::Chosen, 0, DeviceOf(printer)};
}

void QtPrinters::ShowHourglass(bool on) {
    if (on)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

std::unique_ptr<PrinterDevice> QtPrinters::MakePdf(const TargetFile& target, Paper paper) {
    return std::make_unique<QtPrinterDevice>(target, PdfPage(paper));
}

Paper QtPrinters::UsualPaper() const {
    return QLocale().measurementSystem() == QLocale::ImperialUSSystem ? Paper::Letter : Paper::A4;
}

}  // namespace tw
