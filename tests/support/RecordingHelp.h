// A browser and text files that record, and help databases for tests.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "help/HelpPorts.h"
#include "platform/Error.h"
#include "store/Database.h"

namespace tw::test {

class RecordingBrowser : public BrowserPort {
  public:
    int Open(const std::string& file) override {
        opened.push_back(file);
        return code;
    }

    std::vector<std::string> opened;
    int code = kOpenedCode;
};

class MemoryFiles : public TextFilePort {
  public:
    std::string Read(const std::string& file) override {
        const auto found = files.find(file);
        if (found == files.end()) throw Error("MemoryFiles", "no file " + file, 53);
        return found->second;
    }
    void Write(const std::string& file, std::string_view text) override {
        if (!writable) throw Error("MemoryFiles", "no way to write " + file, 70);
        files[file] = text;
    }

    std::map<std::string, std::string> files;
    bool writable = true;
};

// Creates help.mdb in folder and runs these statements on its two tables.
inline void MakeHelpDatabase(const std::filesystem::path& folder, const std::string& statements) {
    const auto database = Database::CreateDatabase((folder / "help.mdb").string(), "");
    database->ExecuteNative(
        "BEGIN; CREATE TABLE CONTEXT_HELP (FORM_NAME TEXT(50), FORM_CONTEXT TEXT(50), HELP_URL TEXT(255));"
        "CREATE TABLE HELP_CONTENTS (TOPIC_ID LONG, TOPIC_NAME TEXT(255), TOPIC_HELP_URL TEXT(255),"
        " PARENT_TOPIC_ID LONG);" +
        statements + "COMMIT;");
}

// A temporary folder, deleted with the object.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "tunwright-help-XXXXXX").string();
        path_ = mkdtemp(name.data());
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

}  // namespace tw::test
