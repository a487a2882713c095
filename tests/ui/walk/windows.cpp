#include "ui/walk/windows.h"

namespace tavrel::test {

const std::array<Place, 28> kWindows = {{
    {.Name = "Cover", .Window = "Main", .NeedsDocument = false},
    {.Name = "Main", .Window = "Main"},
    {.Name = "NewDoc", .Window = "NewDoc", .MenuItem = "FileNew"},
    {.Name = "OpenDoc", .Window = "OpenDoc", .MenuItem = "FileOpen"},
    {.Name = "SaveAs", .Window = "SaveAs", .MenuItem = "FileSaveAs"},
    {.Name = "DeleteDoc", .Window = "DeleteDoc", .MenuItem = "FileDelete"},
    {.Name = "Backup", .Window = "Backup", .MenuItem = "FileBackup"},
    {.Name = "Publish", .Window = "Publish", .MenuItem = "ToolsPublish"},
    {.Name = "Import", .Window = "Import", .MenuItem = "ToolsImport"},
    {.Name = "ManageManager", .Window = "Manage", .MenuItem = "ToolsManage"},
    {.Name = "ManageBrowser", .Window = "Manage", .MenuItem = "ToolsManage", .Tab = 1},
    {.Name = "MusicEditor", .Window = "MusicEditor", .MenuItem = "EditMusic"},
    {.Name = "FindForm", .Window = "FindForm", .MenuItem = "EditSearch"},
    {.Name = "ReplaceForm", .Window = "ReplaceForm", .MenuItem = "EditReplace"},
    {.Name = "BlockCopy", .Window = "BlockCopy", .MenuItem = "EditBlockCopy"},
    {.Name = "BlockClear", .Window = "BlockClear", .MenuItem = "EditBlockClear"},
    {.Name = "BlockDelete", .Window = "BlockDelete", .MenuItem = "EditBlockDelete"},
    {.Name = "BlockInsert", .Window = "BlockInsert", .MenuItem = "EditBlockInsert"},
    {.Name = "Planner", .Window = "Planner", .MenuItem = "EditProjectPlanner"},
    {.Name = "LoadPlanner",
     .Window = "LoadPlanner",
     .MenuItem = "EditProjectPlanner",
     .PlannerButton = "Command4"},
    {.Name = "SavePlanner",
     .Window = "SavePlanner",
     .MenuItem = "EditProjectPlanner",
     .PlannerButton = "Command5"},
    {.Name = "DeletePlan",
     .Window = "DeletePlan",
     .MenuItem = "EditProjectPlanner",
     .PlannerButton = "Command6"},
    {.Name = "Skins", .Window = "Skins", .MenuItem = "HelpCustomise"},
    {.Name = "About", .Window = "About", .MenuItem = "HelpAbout"},
    {.Name = "QuestionBox", .Window = "MessageBox"},
    {.Name = "RefusalBox", .Window = "MessageBox"},
    {.Name = "NewsBox", .Window = "MessageBox"},
    {.Name = "PlainBox", .Window = "MessageBox"},
}};

std::ostream& operator<<(std::ostream& out, const Place& place) {
  return out << place.Name;
}

}  // namespace tavrel::test
