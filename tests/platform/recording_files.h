#pragma once

#include <string>
#include <vector>

#include "platform/file_layer.h"

namespace tavrel::test {

/// The system's file layer, which keeps what it was asked for.
class RecordingFiles final : public FileLayer {
 public:
  std::vector<std::string> Calls;              ///< the operations in their order
  std::vector<std::filesystem::path> Created;  ///< the files that were created as new ones
  std::filesystem::path FlushedFolder;

  std::error_code CreateNew(const std::filesystem::path& file, const std::filesystem::path& like,
                            int& handle) override {
    Calls.emplace_back("CreateNew");
    Created.push_back(file);
    return SystemFiles().CreateNew(file, like, handle);
  }
  std::error_code CreateOrEmpty(const std::filesystem::path& file, int& handle) override {
    Calls.emplace_back("CreateOrEmpty");
    return SystemFiles().CreateOrEmpty(file, handle);
  }
  std::error_code Open(const std::filesystem::path& file, int& handle) override {
    Calls.emplace_back("Open");
    return SystemFiles().Open(file, handle);
  }
  std::error_code Read(int handle, char* buffer, std::size_t size, std::size_t& read) override {
    Calls.emplace_back("Read");
    return SystemFiles().Read(handle, buffer, size, read);
  }
  std::error_code Write(int handle, std::string_view bytes, std::size_t& written) override {
    Calls.emplace_back("Write");
    return SystemFiles().Write(handle, bytes, written);
  }
  std::error_code Flush(int handle) override {
    Calls.emplace_back("Flush");
    return SystemFiles().Flush(handle);
  }
  std::error_code Close(int handle) override {
    Calls.emplace_back("Close");
    return SystemFiles().Close(handle);
  }
  std::error_code Replace(const std::filesystem::path& from, const std::filesystem::path& to) override {
    Calls.emplace_back("Replace");
    return SystemFiles().Replace(from, to);
  }
  std::error_code FlushFolder(const std::filesystem::path& folder) override {
    Calls.emplace_back("FlushFolder");
    FlushedFolder = folder;
    return SystemFiles().FlushFolder(folder);
  }
  std::error_code FlushVolume(const std::filesystem::path& folder) override {
    Calls.emplace_back("FlushVolume");
    return SystemFiles().FlushVolume(folder);
  }
  std::error_code Remove(const std::filesystem::path& file) override {
    Calls.emplace_back("Remove");
    return SystemFiles().Remove(file);
  }
};

}  // namespace tavrel::test
