// tunwright-make-database FOLDER TARGET: creates the starting database TARGET from the catalogue files in
// FOLDER. An existing TARGET contains a brewer's recipes and is left alone. Exit status: 0 created or left
// alone, 1 not created (the reasons are on standard error), 2 wrong arguments.
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>

#include "platform/Error.h"
#include "store/CatalogueLoader.h"
#include "store/Database.h"
#include "store/Schema.h"

namespace {

namespace fs = std::filesystem;

// The database being created, beside its target. Deleted, with the files that the store keeps beside it,
// unless it was put in place.
class PartFile {
  public:
    explicit PartFile(const fs::path& target) : target_(target), path_(target.string() + ".part") {
        Remove();
    }
    ~PartFile() { Remove(); }
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    const std::string& Path() const { return path_; }
    void PutInPlace() { fs::rename(path_, target_); }

  private:
    void Remove() const {
        std::error_code ignored;
        for (const char* suffix : {"", "-journal", "-wal", "-shm"}) fs::remove(path_ + suffix, ignored);
    }

    fs::path target_;
    std::string path_;
};

int MakeDatabase(const std::string& folder, const fs::path& target) {
    if (fs::exists(fs::symlink_status(target))) return 0;
    PartFile part(target);
    tw::CatalogueProblems problems;
    {
        const auto database = tw::Database::CreateDatabase(part.Path(), "");
        tw::CreateSchema(*database);
        // Without dates: no brewer has created these rows at any time, and every build must give the
        // same database.
        problems = tw::LoadCatalogue(folder, *database, std::nullopt);
    }
    for (const tw::CatalogueProblem& problem : problems) std::cerr << problem.Text() << '\n';
    if (!problems.empty()) return 1;
    part.PutInPlace();
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: tunwright-make-database FOLDER TARGET\n";
        return 2;
    }
    try {
        return MakeDatabase(argv[1], argv[2]);
    } catch (const tw::Error& error) {
        std::cerr << argv[2] << ": " << error.WithNumber() << '\n';
    } catch (const std::exception& error) {
        std::cerr << argv[2] << ": " << error.what() << '\n';
    }
    return 1;
}
