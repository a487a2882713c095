#pragma once

#include <QObject>

#include <stdexcept>
#include <string>

namespace tavrel::bench {

/// The child with this name, or of this type if none is given. Throws if there is none.
template <typename Child>
Child& FindChild(const QObject& parent, const char* name = "") {
  auto* child = parent.findChild<Child*>(QString::fromLatin1(name));
  if (child == nullptr)
    throw std::runtime_error(parent.metaObject()->className() + std::string(" has no child ") + name);
  return *child;
}

}  // namespace tavrel::bench
