#include "document/ui/DocumentPages.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

#include "document/DetailWindows.h"
#include "document/ui/FancyLabel.h"
#include "document/ui/FieldBox.h"
#include "document/ui/GeneralPage.h"
#include "document/ui/GridPanel.h"
#include "document/ui/LogCalendar.h"
#include "document/ui/NotesBox.h"
#include "document/ui/PageBuilder.h"
#include "platform/qt/Appearance.h"

namespace tw {
namespace {

QString Tr(const char* text) {
    return QCoreApplication::translate("DocumentPages", text);
}

// Returns a hint with an example for "%1" in the brewer's units.
QString Hint(const PageBuilder& b, const char* text, const char* us, const char* metric) {
    const bool isMetric = b.Binding().Frame().Units() == TypingUnits::Metric;
    return Tr(text).arg(QLatin1String(isMetric ? metric : us));
}

QVBoxLayout* ColumnOf(PageBuilder& b) {
    auto* column = new QVBoxLayout(&b.Page());
    SetSpacing(*column, b.Page(), true);
    return column;
}

// Returns a row of controls, aligned left, each with its own width.
QHBoxLayout* RowOf(PageBuilder& b, std::initializer_list<QWidget*> widgets) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(b.Page()) * kGapUnits);
    for (QWidget* widget : widgets) row->addWidget(widget);
    row->addStretch();
    return row;
}

void BuildGrains(PageBuilder& b) {
    QVBoxLayout* column = ColumnOf(b);
    GridPanel* grid = b.GridOf(
        b.Record().gridGrain,
        Hint(b, "Type a grain's name, Tab, then its amount: %1. Tab goes on in a new row.", "8 lb", "4 kg"));
    column->addWidget(grid, 1);
    FieldBox* rate = b.Field(b.Record().txtExtract, 8);
    column->addLayout(RowOf(b, {b.LabelFor(rate), rate}));
}

void BuildExtracts(PageBuilder& b) {
    ColumnOf(b)->addWidget(
        b.GridOf(
            b.Record().gridExtract,
            Hint(b,
                 "Type an extract's or a sugar's name, Tab, then its amount: %1. Tab goes on in a new row.",
                 "3.3 lb", "1.5 kg")),
        1);
}

void BuildHops(PageBuilder& b) {
    RecipeRecord& r = b.Record();
    QVBoxLayout* column = ColumnOf(b);
    column->addWidget(
        b.GridOf(r.gridHops, Hint(b,
                                  "Type a hop's name, its amount (%1, 8 AAU or 20 IBU) and its minutes in "
                                  "the boil. Tab goes on in a new row.",
                                  "1 oz", "25 g")),
        1);
    auto* heading = new QLabel(Tr("IBU Method:"), &b.Page());
    column->addLayout(
        RowOf(b, {heading, b.Option(r.grpIBUMethod, QStringLiteral("optTinseth"), Tr("Ti&nseth")),
                  b.Option(r.grpIBUMethod, QStringLiteral("optRager"), Tr("&Rager")),
                  b.Option(r.grpIBUMethod, QStringLiteral("optGaretz"), Tr("Garet&z"))}));
    FieldBox* extraction = b.Field(r.txtHopExtraction, 8);
    FieldBox* boil = b.Field(r.txtBG, 8);
    column->addLayout(RowOf(b, {b.LabelFor(extraction), extraction, b.LabelFor(boil), boil}));
}

void BuildWater(PageBuilder& b) {
    RecipeRecord& r = b.Record();
    QVBoxLayout* column = ColumnOf(b);
    column->addWidget(b.GridOf(r.gridWater, {}), 1);
    auto* treat = b.CommandButton(r.cmdCalcTreatment, Tr("Calculate Treat&ment"),
                                  Tr("Works out the salts that turn the source water into the target water"),
                                  [](RecipeDocument& document) { document.Water().CalcTreatment(); });
    treat->setAccessibleName(Tr("Calculate Treatment"));
    column->addLayout(RowOf(b, {treat}));
    column->addWidget(b.GridOf(r.gridTreatment, Tr("Type a salt's name, Tab, then its amount: 4 g.")), 1);
}

QWidget* MakePackaging(PageBuilder& b) {
    RecipeRecord& r = b.Record();
    auto* place = new QWidget(&b.Page());
    auto* column = new QVBoxLayout(place);
    SetSpacing(*column, *place, false);
    GridPanel* priming =
        b.GridOf(r.gridPriming, Hint(b, "Type a sugar's name, Tab, then its amount: %1.", "4 oz", "115 g"));
    GridPanel* pressure = b.GridOf(r.gridPressure, {});
    auto* heading = new FancyLabel({}, place);
    heading->setObjectName(QStringLiteral("FancyLabel8"));
    column->addWidget(heading);
    column->addWidget(priming, 1);
    column->addWidget(pressure, 1);
    const auto show = [&r, heading, priming, pressure] {
        heading->SetCaption(r.Bottled() ? Tr("Priming") : Tr("Pressure"));
        priming->setVisible(r.Bottled());
        pressure->setVisible(!r.Bottled());
    };
    b.Binding().Watch(&r.grpPkgMethod, show);
    show();
    return place;
}

void BuildCarbonation(PageBuilder& b) {
    RecipeRecord& r = b.Record();
    QVBoxLayout* column = ColumnOf(b);
    auto* fields = new QGridLayout;
    fields->setSpacing(Unit(b.Page()) * kGapUnits);
    const auto add = [&](int row, TextBox& box) {
        FieldBox* field = b.Field(box, 10);
        fields->addWidget(b.LabelFor(field), row, 0);
        fields->addWidget(field, row, 1);
    };
    add(0, r.txtTemp);
    add(1, r.txtDilutions);
    add(2, r.txtFinalVol);
    fields->addWidget(
        b.CommandButton(r.cmdFinalVolDetails, Tr("&More Info"), Tr("More about the final volume"),
                        [&b = b.Binding()](RecipeDocument& document) {
                            DetailsModel details = FinalVolDetailsOf(document);
                            b.Ports().dialogs.ShowModal(details);
                        }),
        2, 2);
    fields->setColumnStretch(3, 1);
    column->addLayout(fields);
    column->addSpacing(Unit(b.Page()));
    auto* heading = new FancyLabel(Tr("Packaging"), &b.Page());
    heading->setObjectName(QStringLiteral("FancyLabel7"));
    column->addWidget(heading);
    auto* method = new QLabel(Tr("Method:"), &b.Page());
    column->addLayout(
        RowOf(b, {method, b.Option(r.grpPkgMethod, QStringLiteral("optBottle"), Tr("&Bottling")),
                  b.Option(r.grpPkgMethod, QStringLiteral("optKeg"), Tr("Keggi&ng"))}));
    column->addWidget(MakePackaging(b), 1);
}

void BuildAdjuncts(PageBuilder& b) {
    ColumnOf(b)->addWidget(
        b.GridOf(b.Record().gridAdjuncts, Tr("Type the adjunct, as Irish moss, Tab, then its amount.")), 1);
}

void BuildLog(PageBuilder& b) {
    QVBoxLayout* column = ColumnOf(b);
    GridPanel* grid =
        b.GridOf(b.Record().gridLog,
                 Tr("Type the date, Tab, then what was done, and notes. Alt and Down shows a calendar."));
    grid->View().SetHasDates();
    column->addWidget(grid, 1);
    auto* calendar = new LogCalendar(b.Binding(), grid->View(), &b.Page());
    auto* pick = new QPushButton(Tr("Pick &Date..."), &b.Page());
    pick->setObjectName(QStringLiteral("cmdPickDate"));
    pick->setAccessibleName(Tr("Pick a date for the current row"));
    pick->setToolTip(Tr("Pick a date for the current row (Alt+Down)"));
    pick->setAutoDefault(false);
    QObject::connect(pick, &QPushButton::clicked, calendar, [calendar] { calendar->Open(); });
    column->addLayout(RowOf(b, {pick}));
}

void BuildNotes(PageBuilder& b) {
    ColumnOf(b)->addWidget(new NotesBox(b.Binding(), b.Record().txtNotes,
                                        PageBuilder::CaptionOf(b.Record().txtNotes), &b.Page()),
                           1);
}

}  // namespace

void BuildPage(Tab tab, PageBuilder& builder) {
    static constexpr std::array<void (*)(PageBuilder&), kTabs> kBuilders{
        BuildGeneral,     BuildGrains,   BuildExtracts, BuildHops, BuildWater,
        BuildCarbonation, BuildAdjuncts, BuildLog,      BuildNotes};
    kBuilders[static_cast<std::size_t>(tab)](builder);
}

}  // namespace tw
