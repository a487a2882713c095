#include "support/tree_snapshot.h"

#include <fstream>
#include <iterator>
#include <utility>

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

/// The path as bytes that need not be text.
std::string Name(const fs::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

bool IsPermitted(const std::string& name, const std::set<std::string>& permitted) {
  for (std::size_t end = name.find('/'); end != std::string::npos; end = name.find('/', end + 1)) {
    if (permitted.contains(name.substr(0, end))) return true;
  }
  return permitted.contains(name);
}

}  // namespace

TreeSnapshot::TreeSnapshot(fs::path root) : root_(std::move(root)), entries_(Read(root_)) {}

std::vector<std::string> TreeSnapshot::Changes(const std::set<std::string>& permitted) const {
  std::vector<std::string> changes;
  const auto add = [&](const char* what, const std::string& name) {
    if (!IsPermitted(name, permitted)) changes.push_back(what + name);
  };
  Entries now = Read(root_);
  for (const auto& [name, entry] : entries_) {
    const auto found = now.find(name);
    if (found == now.end()) {
      add("gone: ", name);
    } else {
      if (found->second != entry) add("changed: ", name);
      now.erase(found);
    }
  }
  for (const auto& [name, entry] : now) add("made: ", name);
  return changes;
}

TreeSnapshot::Entries TreeSnapshot::Read(const fs::path& root) {
  Entries entries;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
    entries[Name(entry.path().lexically_relative(root))] = ReadEntry(entry);
  }
  return entries;
}

TreeSnapshot::Entry TreeSnapshot::ReadEntry(const fs::directory_entry& entry) {
  const fs::file_status status = entry.symlink_status();
  Entry read{.Type = status.type(), .Permissions = status.permissions(), .LeadsTo = {}, .Bytes = {}};
  if (status.type() == fs::file_type::symlink) read.LeadsTo = fs::read_symlink(entry.path());
  if (status.type() == fs::file_type::regular) {
    std::ifstream file(entry.path(), std::ios::binary);
    read.Bytes.assign(std::istreambuf_iterator<char>(file), {});
  }
  return read;
}

}  // namespace tavrel::test
