#include "support/temporary_folder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <system_error>

namespace tavrel::test {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() : old_current_(fs::current_path()) {
  std::random_device random;
  do {
    path_ = fs::canonical(fs::temp_directory_path()) / ("tavrel-test-" + std::to_string(random()));
  } while (!fs::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code error;
  fs::current_path(old_current_, error);
  for (auto entry = fs::recursive_directory_iterator(path_, error); !error && entry != fs::end(entry);
       entry.increment(error)) {
    if (entry->is_symlink(error)) continue;
    // Some systems keep files that may not be written to from being removed.
    const fs::perms needed = entry->is_directory(error) ? fs::perms::owner_all : fs::perms::owner_write;
    fs::permissions(entry->path(), needed, fs::perm_options::add, error);
  }
  fs::remove_all(path_, error);
}

void TemporaryFolder::Write(const fs::path& name, std::string_view bytes) const {
  fs::create_directories((path_ / name).parent_path());
  std::ofstream file(path_ / name, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error("cannot write " + (path_ / name).string());
}

std::string TemporaryFolder::Read(const fs::path& name) const {
  std::ifstream file(path_ / name, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + (path_ / name).string());
  return {std::istreambuf_iterator<char>(file), {}};
}

bool TemporaryFolder::Has(const fs::path& name) const {
  return fs::exists(path_ / name);
}

std::map<std::string, std::string> TemporaryFolder::Files() const {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(path_)) {
    if (!entry.is_regular_file()) continue;
    const fs::path name = entry.path().lexically_relative(path_);
    files[name.generic_string()] = Read(name);
  }
  return files;
}

}  // namespace tavrel::test
