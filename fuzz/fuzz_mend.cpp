// Mends any bytes as a file of recipes in XML. What is not refused becomes XML that the parser takes; mending
// it again changes nothing and finds nothing but notes.
#include <cstdint>
#include <cstdlib>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "exchange/XmlMend.h"
#include "platform/Error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tw;
    Findings findings;
    std::string mended;
    try {
        mended = MendXml({reinterpret_cast<const char*>(data), size}, findings);
    } catch (const Error&) {
        return 0;
    }
    pugi::xml_document document;
    if (!document.load_buffer(mended.data(), mended.size(), pugi::parse_full, pugi::encoding_utf8))
        std::abort();
    Findings again;
    if (MendXml(mended, again) != mended) std::abort();
    for (const Finding& each : again.All())
        if (each.severity != Severity::Note) std::abort();
    return 0;
}
