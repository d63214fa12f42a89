// What the help needs of the platform: somebody who shows a page, and text files.
#pragma once

#include <string>
#include <string_view>

namespace tw {

// Opens documents in the program that the desktop uses for them.
class BrowserPort {
  public:
    virtual ~BrowserPort() = default;
    // 33 or above when the document is on its way to the screen; otherwise one of the codes of
    // BrowserFailure.
    virtual int Open(const std::string& file) = 0;
};

// Whole text files, byte for byte. Both operations raise Error with a description that names the file.
class TextFilePort {
  public:
    virtual ~TextFilePort() = default;
    virtual std::string Read(const std::string& file) = 0;
    // Over a file that exists.
    virtual void Write(const std::string& file, std::string_view text) = 0;
};

// The codes of BrowserPort::Open that the platform itself finds.
inline constexpr int kFileNotFoundCode = 2;
inline constexpr int kAccessDeniedCode = 5;
inline constexpr int kNoProgramCode = 31;
inline constexpr int kOpenedCode = 33;

}  // namespace tw
