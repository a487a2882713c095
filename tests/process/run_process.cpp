#include <QProcess>
#include <QProcessEnvironment>

#include "process/process_test.h"

namespace tavrel::test {

namespace fs = std::filesystem;

const char* const kPortableSettings = "a\nb\nc\nd\n\n\n\n\n\n0\n\n\n\n\n\n\n\n\n\n\n";

void ProcessTest::SetUp() {
  fs::create_directory(home_.Path() / "home");
#ifdef _WIN32
  folder_ = "portable";
  home_.Write(folder_ / "tavrel.ini", kPortableSettings);
  fs::copy_file(DRIVEN_WRITER, home_.Path() / folder_ / "writer.exe");
#endif
}

void ProcessTest::Run(const QStringList& commands) {
#ifdef _WIN32
  Run(commands, QString::fromStdString((home_.Path() / folder_ / "writer.exe").string()));
#else
  Run(commands, DRIVEN_WRITER);
#endif
}

void ProcessTest::Run(const QStringList& commands, const QString& program) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("HOME", QString::fromStdString((home_.Path() / "home").string()));
  environment.insert("TMPDIR", QString::fromStdString((home_.Path() / "temporary").string()));
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  environment.remove("XDG_CONFIG_HOME");
#ifdef _WIN32
  environment.insert("DRIVEN_WRITER_SETTINGS",
                     QString::fromStdString((home_.Path() / "home" / ".config").string()));
#endif
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(QString::fromStdString(home_.Path().string()));
  process.start(program, commands);
  ASSERT_TRUE(process.waitForFinished(kPatience)) << "the program does not end";
  ASSERT_EQ(process.exitStatus(), QProcess::NormalExit);
  status_ = process.exitCode();
  output_ = process.readAllStandardOutput().toStdString();
  std::erase(output_, '\r');
}

}  // namespace tavrel::test
