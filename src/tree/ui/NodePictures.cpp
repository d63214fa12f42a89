#include "tree/ui/NodePictures.h"

#include "platform/qt/QtText.h"
#include "platform/qt/SvgIcon.h"

namespace tw {

QIcon NodePicture(NodeIcon icon) {
    if (icon == NodeIcon::None || icon == NodeIcon::Other) return {};
    QString name = ToQt(IconName(icon));
    return SvgIcon(
        QStringLiteral(":/icons/tree/%1.svg").arg(name.replace(QLatin1Char(' '), QLatin1Char('-'))),
        SvgInk::AsDrawn);
}

}  // namespace tw
