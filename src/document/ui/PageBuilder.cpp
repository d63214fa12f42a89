#include "document/ui/PageBuilder.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "document/ui/FieldBox.h"
#include "document/ui/GapMark.h"
#include "document/ui/GridPanel.h"
#include "document/ui/ListField.h"
#include "document/ui/RangeBar.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "record/CellRules.h"
#include "record/FieldRules.h"

namespace tw {
QString PlainCaption(QString caption) {
    caption.remove(QLatin1Char('&'));
    if (caption.endsWith(QLatin1Char(':'))) caption.chop(1);
    return caption;
}

QLabel* PageBuilder::LabelFor(const QString& caption, QWidget* buddy) {
    auto* label = new QLabel(caption, &page_);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setBuddy(buddy);
    return label;
}

QString PageBuilder::CaptionOf(const TextBox& box) {
    return QCoreApplication::translate("PageBuilder", RuleOf(box).caption.data());
}

QLabel* PageBuilder::LabelFor(FieldBox* field) {
    return LabelFor(CaptionOf(field->Box()), field);
}

FieldBox* PageBuilder::Field(TextBox& box, int digits) {
    return new FieldBox(binding_, box, PlainCaption(CaptionOf(box)), digits, &page_);
}

FieldBox* PageBuilder::Figure(TextBox& box, int digits) {
    FieldBox* field = Field(box, digits);
    field->setFont(FigureFont(field->font()));
    return field;
}

QLabel* PageBuilder::RecordLabel(const Label& label, const QString& name) {
    auto* widget = new QLabel(ToQt(label.Text()), &page_);
    widget->setObjectName(ToQt(label.Name()));
    widget->setAccessibleName(name);
    widget->setTextFormat(Qt::PlainText);
    binding_.Watch(&label, [widget, &label] { widget->setText(ToQt(label.Text())); });
    return widget;
}

RangeBar* PageBuilder::Bar(const TextBox& figure, const Label& range, const QString& what) {
    auto* bar = new RangeBar(what, &page_);
    const auto show = [bar, &figure, &range] { bar->Show(range.Text(), figure.Text()); };
    binding_.Watch(&figure, show);
    binding_.Watch(&range, show);
    show();
    return bar;
}

GapMark* PageBuilder::Gaps(FieldId figure, const QString& what) {
    const auto reasons = [&binding = binding_, figure] {
        const RecipeDocument* const document = binding.Document();
        return document ? document->Missing().ReasonsOf(figure) : std::vector<std::string>();
    };
    return new GapMark(binding_, what, reasons, &page_);
}

QPushButton* PageBuilder::CommandButton(const Button& button, const QString& caption, const QString& name,
                                        std::function<void(RecipeDocument&)> action) {
    auto* widget = new QPushButton(caption, &page_);
    widget->setObjectName(ToQt(button.Name()));
    widget->setAccessibleName(name);
    widget->setToolTip(name);
    widget->setAutoDefault(false);
    const auto show = [widget, &button] { widget->setEnabled(button.Enabled()); };
    binding_.Watch(&button, show);
    show();
    DocumentBinding& binding = binding_;
    QObject::connect(widget, &QPushButton::clicked, widget, [&binding, action = std::move(action)] {
        if (binding.Flush()) binding.Run(action);
    });
    return widget;
}

QComboBox* PageBuilder::StyleList(const QString& name) {
    return new ListField(
        binding_, record_.cmbStyle, name, &page_,
        [](RecipeDocument& document, int index) { document.Style().Select(index); },
        [](const RecipeDocument& document) { return document.Style().Names(); });
}

QRadioButton* PageBuilder::Option(const OptionGroup& group, const QString& option, const QString& caption) {
    auto* button = new QRadioButton(caption, &page_);
    button->setObjectName(option);
    button->setAccessibleName(PlainCaption(caption));
    const std::string name = FromQt(option);
    const auto show = [button, &group, name] { button->setChecked(group.Value() == name); };
    binding_.Watch(&group, show);
    show();
    DocumentBinding& binding = binding_;
    QObject::connect(button, &QRadioButton::clicked, button, [&binding, name, show] {
        binding.Run([&](RecipeDocument& document) { document.Options().Choose(name); });
        if (binding.Document()) show();
    });
    return button;
}

GridPanel* PageBuilder::GridOf(Grid& grid, const QString& hint) {
    const QString name = QCoreApplication::translate("PageBuilder", RuleOf(grid).caption.data());
    return new GridPanel(binding_, grid, name, hint, &page_);
}

}  // namespace tw
