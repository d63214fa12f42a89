// The bytes of a text file as UTF-8, whatever the file says about itself.
#pragma once

#include <string>
#include <string_view>

namespace tw {

struct DecodedText {
    std::string text;      // valid UTF-8, without byte order mark; its line breaks are those of the file
    std::string encoding;  // what the bytes were: "UTF-8", "UTF-16", "Windows-1252", "KOI8-R"
    std::string declared;  // the name in the header of an XML file; empty if there is none
    // A sentence for the brewer about what had to be guessed; empty if nothing had to be: the declared name
    // is unknown or contradicts the bytes, or there is none and the bytes are not UTF-8.
    std::string remark;
};

// Never fails. The encoding is taken from a byte order mark, else from the zero bytes of UTF-16, else it is
// UTF-8 if the bytes are, else the declared one if the bytes hold to it, else Windows-1252, whose five
// undefined bytes become U+FFFD. A character that the end of the file cuts off is left out.
DecodedText Decode(std::string_view bytes);

}  // namespace tw
