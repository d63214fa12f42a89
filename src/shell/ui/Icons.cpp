#include "shell/ui/Icons.h"

#include <QString>

#include "platform/qt/QtText.h"
#include "platform/qt/SvgIcon.h"

namespace tw {
namespace {

constexpr const char* kSets[] = {"simple", "high", "xp"};

}  // namespace

QIcon ToolIcon(std::string_view image, int iconStyle) {
    constexpr std::string_view kTwin = "Transparent";
    if (image.ends_with(kTwin)) image.remove_suffix(kTwin.size());
    const int set = iconStyle == 0 || iconStyle == 1 ? iconStyle : 2;
    return SvgIcon(QStringLiteral(":/icons/%1/%2.svg").arg(QLatin1String(kSets[set]), ToQt(image)),
                   set == 0 ? SvgInk::Classic : SvgInk::AsDrawn);
}

QIcon ProgramIcon() {
    return SvgIcon(QStringLiteral(":/icons/tunwright.svg"), SvgInk::Classic);
}

}  // namespace tw
