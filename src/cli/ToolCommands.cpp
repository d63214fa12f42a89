// Commands on the brewer's tools.
#include "cli/Command.h"
#include "tools/ConvertUnitsModel.h"
#include "tools/HydrometerModel.h"
#include "values/Text.h"

namespace tw {
namespace {

int BoxNamed(const ConvertUnitsModel& converter, const std::string& label) {
    for (int box = 0; box < converter.BoxCount(); ++box)
        if (SameName(converter.Label(box), label)) return box;
    throw ScriptError(std::string(KindName(converter.Kind())) + " has no box '" + label + "'");
}

void ConvertUnits(Session& session, Arguments& arguments) {
    const std::string kindName = arguments.Word("KIND");
    const std::string label = arguments.Word("LABEL");
    const std::string text = arguments.Text();
    const std::optional<QuantityKind> kind = FindKind(kindName);
    if (!kind) throw ScriptError("there is no kind of quantity '" + kindName + "'");
    ConvertUnitsModel converter(session.Messages());
    converter.SetKind(*kind);
    const int box = BoxNamed(converter, label);
    if (!converter.Enter(box, text)) return;
    for (int other = 0; other < converter.BoxCount(); ++other)
        if (other != box) session.Out().Line(converter.Label(other) + ": " + converter.Text(other));
}

void CorrectReading(Session& session, Arguments& arguments) {
    const std::string reading = arguments.Word("READING");
    const std::string temperature = arguments.Word("TEMPERATURE");
    const std::string calibration = arguments.Word("CALIBRATION");
    arguments.End();
    HydrometerModel hydrometer(session.Messages());
    hydrometer.TypeInto("txtActRead", reading);
    hydrometer.TypeInto("txtActTemp", temperature);
    hydrometer.TypeInto("cmbCalTemp", calibration);
    hydrometer.UpdateCorrection();
    session.Out().Text(hydrometer.Text("txtCalRead"));
}

constexpr Command kCommands[] = {
    {"convert", "KIND LABEL TEXT", "the other boxes of the unit converter", ConvertUnits},
    {"hydrometer", "\"READING\" \"TEMPERATURE\" \"CALIBRATION\"", "a hydrometer's corrected reading",
     CorrectReading},
};

}  // namespace

std::span<const Command> CommandsOfTools() {
    return kCommands;
}

}  // namespace tw
