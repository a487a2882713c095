#pragma once

#include <cstddef>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

namespace tavrel {

/// The bytes of one page or of one music link. Copies share them until one is changed, so that a whole
/// document is kept as it was for the price of its pointers.
class Record {
 public:
  Record() = default;
  // Wherever bytes are given, a record is meant.
  Record(std::string bytes) { Set(std::move(bytes)); }            // NOLINT(google-explicit-constructor)
  Record(std::string_view bytes) : Record(std::string(bytes)) {}  // NOLINT(google-explicit-constructor)
  Record(const char* bytes) : Record(std::string(bytes)) {}       // NOLINT(google-explicit-constructor)
  operator const std::string&() const { return Bytes(); }         // NOLINT(google-explicit-constructor)
  operator std::string_view() const { return Bytes(); }           // NOLINT(google-explicit-constructor)

  const std::string& Bytes() const;
  /// The bytes to change; other copies of the record keep theirs.
  std::string& Edit();

  // As strings call it.
  // NOLINTBEGIN(readability-identifier-naming)
  bool empty() const { return bytes_ == nullptr || bytes_->empty(); }
  std::size_t size() const { return Bytes().size(); }
  std::size_t find(std::string_view text) const { return Bytes().find(text); }
  void clear() { bytes_.reset(); }
  // NOLINTEND(readability-identifier-naming)
  Record& operator+=(std::string_view more);
  Record& operator+=(char more) { return *this += std::string_view(&more, 1); }
  /// Takes these bytes. If they are the same, copies go on sharing them.
  void Update(std::string bytes);
  /// Whether both have the very same bytes, not only equal ones.
  bool Shares(const Record& other) const { return bytes_ == other.bytes_; }

  friend bool operator==(const Record& one, const Record& other) {
    return one.bytes_ == other.bytes_ || one.Bytes() == other.Bytes();
  }
  friend bool operator==(const Record& record, std::string_view bytes) { return record.Bytes() == bytes; }
  friend bool operator==(const Record& record, const std::string& bytes) { return record.Bytes() == bytes; }
  friend bool operator==(const Record& record, const char* bytes) { return record.Bytes() == bytes; }

 private:
  void Set(std::string bytes);

  std::shared_ptr<std::string> bytes_;  ///< none if the record is empty
};

inline std::string operator+(const Record& one, std::string_view other) {
  return std::string(one.Bytes()).append(other);
}

/// Writes the bytes.
inline std::ostream& operator<<(std::ostream& out, const Record& record) {
  return out << record.Bytes();
}

}  // namespace tavrel
