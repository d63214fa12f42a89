// Runs the tests within the program's own application object.
#include <QFont>
#include <gtest/gtest.h>

#include "app/Application.h"
#include "document/ui/RangeBar.h"
#include "platform/qt/ProgramStyle.h"
#include "tools/ui/ToolAccessibility.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    tw::Application application(argc, argv);
    tw::ProgramStyle::Install();
    tw::InstallRangeBarAccessibility();
    tw::InstallToolAccessibility();
    QFont font = QApplication::font();
    const double scale = qEnvironmentVariable("TUNWRIGHT_TEST_FONT_SCALE", QStringLiteral("1")).toDouble();
    font.setPointSizeF(font.pointSizeF() * scale);
    QApplication::setFont(font);
    return RUN_ALL_TESTS();
}
