#pragma once

#include <QObject>

#include "ui/app.h"

class QWidget;

namespace tavrel {

class SkinPictures;

/// The commands of the Help menu.
class HelpMenu : public QObject {
  Q_OBJECT

 public:
  HelpMenu(App& app, SkinPictures& skins, QWidget* window);

 public slots:
  void HelpHelp_Click();
  void HelpWebSite_Click();
  void HelpIpodSite_Click();
  void HelpiTunesSite_Click();
  void HelpEmail_Click();
  void HelpCustomise_Click();
  void HelpAbout_Click();

 private:
  App& app_;
  SkinPictures& skins_;
  QWidget* window_;
};

}  // namespace tavrel
