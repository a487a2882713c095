#pragma once

#include <QObject>

#include "core/document/global.h"
#include "ui/app.h"
#include "ui/main/editor.h"

class QTimer;

namespace tavrel {

/// The document as it would be if the page were stored now, a quarter of a second late.
class LiveDocument : public QObject {
  Q_OBJECT

 public:
  LiveDocument(App& app, const Editor& editor, QObject* parent);

  /// Whether there is one.
  bool IsOpen() const { return is_open_; }
  const Global& Document() const { return document_; }

  /// Looks now. What the document's records are is compared without reading them.
  void Look();

 signals:
  void Changed();

 private:
  Global WithTyped();

  App& app_;
  const Editor& editor_;
  QTimer* timer_;
  Record typed_;
  Global document_;
  bool is_open_ = false;
};

}  // namespace tavrel
