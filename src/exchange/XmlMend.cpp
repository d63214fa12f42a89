#include "exchange/XmlMend.h"

#include <algorithm>

#include "exchange/ExchangeLimits.h"
#include "exchange/MendLog.h"
#include "exchange/TextEncoding.h"
#include "exchange/XmlMender.h"
#include "exchange/XmlText.h"

namespace tw {

std::string MendXml(std::string_view bytes, Findings& findings) {
    if (bytes.size() > kMostExchangeBytes)
        RefuseFile("The file is larger than 64 MB. Export the recipes in several files.");
    DecodedText decoded = Decode(bytes);
    if (!decoded.remark.empty()) {
        const std::size_t header = std::min(decoded.text.find("<?xml"), decoded.text.size());
        const std::size_t line =
            header == decoded.text.size() ? 1 : MendLog(decoded.text, findings).LineAt(header);
        findings.Add(
            {Severity::Repaired, FindingCode::Encoding, {}, "line " + std::to_string(line), decoded.remark});
    }
    RemoveControlCharacters(decoded.text, findings);
    return XmlMender(decoded.text, findings).Mend();
}

}  // namespace tw
