#include "core/document/record.h"

namespace tavrel {

const std::string& Record::Bytes() const {
  static const std::string nothing;
  return bytes_ ? *bytes_ : nothing;
}

std::string& Record::Edit() {
  if (!bytes_) {
    bytes_ = std::make_shared<std::string>();
  } else if (bytes_.use_count() > 1) {
    bytes_ = std::make_shared<std::string>(*bytes_);
  }
  return *bytes_;
}

Record& Record::operator+=(std::string_view more) {
  Edit().append(more);
  return *this;
}

void Record::Update(std::string bytes) {
  if (Bytes() != bytes) *this = Record(std::move(bytes));
}

void Record::Set(std::string bytes) {
  if (bytes.empty()) return;
  bytes.shrink_to_fit();  // records are kept for long
  bytes_ = std::make_shared<std::string>(std::move(bytes));
}

}  // namespace tavrel
