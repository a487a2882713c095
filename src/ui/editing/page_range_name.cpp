#include "ui/editing/page_range_name.h"

#include <QCoreApplication>

namespace tavrel {

QString NameOf(PageRange pages) {
  if (pages.Count() == 1) return QCoreApplication::translate("PageRange", "page %1").arg(pages.First);
  return QCoreApplication::translate("PageRange", "pages %1 to %2").arg(pages.First).arg(pages.Last);
}

}  // namespace tavrel
