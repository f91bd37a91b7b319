#include "Fhset.h"
#include "WorldFixtures.h"

#include "TempFolder.h"

#include <QFile>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

struct Outcome {
  int exitCode;
  QString out;
  QString err;
};

Outcome fhsetWith(const QStringList& arguments) {
  QString out;
  QString err;
  QTextStream outStream(&out);
  QTextStream errStream(&err);
  const int exitCode = fhset::runFhset(arguments, outStream, errStream);
  outStream.flush();
  errStream.flush();
  return {exitCode, out, err};
}

TEST(FhsetCommand, DumpThenBuildWritesTheSameFile) {
  TempFolder folder;
  const QByteArray bytes = savedBytes(sampleSet());
  const QString original = folder.write(QStringLiteral("World.set"), bytes);
  const Outcome dump = fhsetWith({QStringLiteral("dump"), original});
  ASSERT_EQ(dump.exitCode, 0) << dump.err.toStdString();
  const QString text = folder.write(QStringLiteral("world.txt"), dump.out.toUtf8());
  const QString copy = folder.at(QStringLiteral("copy.set"));
  const Outcome build = fhsetWith({QStringLiteral("build"), text, QStringLiteral("-o"), copy});
  ASSERT_EQ(build.exitCode, 0) << build.err.toStdString();
  QFile written(copy);
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  EXPECT_EQ(written.readAll(), bytes);
}

TEST(FhsetCommand, DamagedDumpAndBadTextExitWithOne) {
  TempFolder folder;
  const QString shortFile = folder.write(QStringLiteral("short.set"), savedBytes(sampleSet()).left(100));
  const Outcome dump = fhsetWith({QStringLiteral("dump"), shortFile});
  EXPECT_EQ(dump.exitCode, 1);
  EXPECT_TRUE(dump.out.startsWith(QStringLiteral("# Fernhollow world file, text form of short.set\nset Fernhollow\n")));
  EXPECT_TRUE(dump.err.contains(QStringLiteral("short.set: byte 100: the file ends 29 bytes into shot 0")));

  const QString text = folder.write(QStringLiteral("bad.txt"), "set S\nwidth 3\n");
  const QString target = folder.at(QStringLiteral("bad.set"));
  const Outcome build = fhsetWith({QStringLiteral("build"), QStringLiteral("-o"), target, text});
  EXPECT_EQ(build.exitCode, 1);
  EXPECT_TRUE(build.err.startsWith(text + QStringLiteral(":2: 'width' belongs in a hotspot")));
  EXPECT_FALSE(QFile::exists(target));
}

TEST(FhsetCommand, CommandLineMistakesExitWithTwo) {
  EXPECT_EQ(fhsetWith({QStringLiteral("--help")}).exitCode, 0);
  EXPECT_TRUE(fhsetWith({QStringLiteral("--help")}).out.contains(QStringLiteral("fhset build TEXT -o FILE.set")));
  EXPECT_EQ(fhsetWith({}).exitCode, 2);
  EXPECT_EQ(fhsetWith({QStringLiteral("explode")}).exitCode, 2);
  EXPECT_EQ(fhsetWith({QStringLiteral("build"), QStringLiteral("a.txt")}).exitCode, 2);
  EXPECT_EQ(fhsetWith({QStringLiteral("dump"), QStringLiteral("/no/such/file.set")}).exitCode, 2);
}

}  // namespace
}  // namespace fh::test
