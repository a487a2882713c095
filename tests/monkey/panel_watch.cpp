#include "monkey/panel_watch.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <map>
#include <string>
#include <utility>

#include "support/user.h"
#include "ui/controls/line_field.h"
#include "ui/controls/row_list.h"
#include "ui/main/main_window.h"
#include "ui/view/check_panel.h"
#include "ui/view/find_all_panel.h"
#include "ui/view/hit_model.h"
#include "ui/view/live_document.h"
#include "ui/view/preview_panel.h"

namespace tavrel::test {
namespace {

/// The control of a field that a list calls so.
std::string ControlNamed(const QString& field) {
  static const std::map<QString, std::string> controls = {
      {"Title", "Text3"},     {"Note", "Text4"},       {"Text", "Text1"},
      {"Page", "Text1"},      {"Project", ""},         {"Link to", "Combo1"},
      {"Link text", "Text5"}, {"Music text", "Text6"}, {"Music link", "Combo2"}};
  const auto found = controls.find(field);
  Expect(found != controls.end(), "a field of the editor is called " + field.toStdString());
  return found->second;
}

bool IsEnterPress(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

PanelWatch::PanelWatch(const Screen& screen, tavrel::test::Record& record)
    : QObject(&screen.Window), screen_(screen), record_(record) {
  Main& window = screen.Window;
  Watch(Find<RowList>(window, "Hits"));
  Watch(Find<RowList>(window, "Findings"));
  Find<LineField>(window, "FindWhat").installEventFilter(this);
  // These are told when the program has done its work.
  connect(&Find<FindAllPanel>(window, "FindAllPanel"), &FindAllPanel::Chosen, this, [this] { Record(row_); });
  connect(&Find<CheckPanel>(window, "CheckPanel"), &CheckPanel::Chosen, this, [this] { Record(row_); });
  connect(&Find<PreviewPanel>(window, "PreviewPanel"), &PreviewPanel::PageChosen, this,
          [this](int page) { Record({.What = Event::Kind::Led, .Window = "PreviewPanel", .Number = page}); });
}

void PanelWatch::Watch(RowList& list) {
  list.installEventFilter(this);
  list.viewport()->installEventFilter(this);
}

bool PanelWatch::eventFilter(QObject* watched, QEvent* event) {
  const bool is_click =
      event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonDblClick;
  if (!is_click && !IsEnterPress(*event)) return false;
  if (const auto* list = qobject_cast<RowList*>(watched)) {
    LookAt(*list, list->Row());
  } else if (const auto* clicked = qobject_cast<RowList*>(watched->parent())) {
    if (is_click) {
      const auto* click = static_cast<const QMouseEvent*>(event);
      LookAt(*clicked, clicked->indexAt(click->position().toPoint()).row());
    }
  } else if (!is_click) {
    const auto& hits = Find<RowList>(*parent(), "Hits");
    LookAt(hits, std::max(0, hits.Row()));
  }
  return false;
}

void PanelWatch::LookAt(const RowList& list, int row) {
  if (row < 0 || row >= list.model()->rowCount()) return;
  const auto cell = [&](int column) { return list.model()->index(row, column); };
  QString field = cell(1).data().toString();
  const bool is_link = field.startsWith("Link ");
  const QString link = is_link ? field.section(' ', -1) : "0";
  if (is_link) field = field.section(' ', 0, -2);
  const QModelIndex context = cell(HitModel::kContextColumn);
  const QString found = context.data().toString().mid(context.data(HitModel::kStartRole).toInt(),
                                                      context.data(HitModel::kLengthRole).toInt());
  const int page = cell(0).data().toInt();
  row_ = {
      .What = Event::Kind::Led,
      .Window = list.objectName().toStdString(),
      .Control = ControlNamed(field),
      .Values = {{"link", link.toStdString()}, {"found", found.toStdString()}, {"record", RecordOf(page)}},
      .Number = page};
}

/// As the panels have seen it last.
std::string PanelWatch::RecordOf(int page) const {
  const bool is_page = page >= 1 && page <= kLastPage;
  return is_page ? parent()->findChild<LiveDocument*>()->Document().Page(page).Bytes() : "";
}

void PanelWatch::Record(Event event) {
  if (record_.IsOver) return;
  event.Place = screen_.PlaceIn(screen_.Focus());
  record_.Events.push_back(std::move(event));
}

}  // namespace tavrel::test
