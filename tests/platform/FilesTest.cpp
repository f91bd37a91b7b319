#include "platform/base/Ansi.h"
#include "platform/base/Failure.h"
#include "platform/files/ByteFile.h"
#include "platform/files/FileNames.h"

#include "FailureOf.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

namespace fh::test {

TEST(FileNameResolution, MatchesEveryComponentWithoutRegardToCase) {
  TempFolder tree;
  const QString menu = tree.write(QStringLiteral("Res/Graphics/Menu.bmp"));
  EXPECT_EQ(resolveFileName(tree.path() + QStringLiteral("\\RES\\graphics\\MENU.BMP")), menu);
  EXPECT_EQ(resolveFileName(tree.path() + QStringLiteral("/res\\Graphics/menu.bmp")), menu);
  // An upper-cased resource path still finds the real folders from the root down.
  EXPECT_EQ(resolveFileName(tree.path().toUpper() + QStringLiteral("\\RES\\GRAPHICS\\MENU.BMP")), menu);
}

TEST(FileNameResolution, PrefersTheExactSpellingAndKeepsMissingPartsAsWritten) {
  TempFolder tree;
  tree.write(QStringLiteral("Audio/click.wav"));
  const QString exact = tree.write(QStringLiteral("Audio/Click.wav"));
  EXPECT_EQ(resolveFileName(tree.path() + QStringLiteral("/audio/Click.wav")), exact);
  EXPECT_EQ(resolveFileName(tree.path() + QStringLiteral("/AUDIO/New Folder\\Song.mid")), tree.path() + "/Audio/New Folder/Song.mid");
}

TEST(NamesFromTheWorld, StayInTheirFolderOrAreMissingFiles) {
  for (const char* name : {"Kitchen.bmp", "Rooms\\Kitchen.bmp", "Rooms/../Kitchen.bmp", ".\\Kitchen.bmp"})
    EXPECT_TRUE(staysInFolder(QString::fromLatin1(name))) << name;
  for (const char* name : {"..\\Kitchen.bmp", "Rooms/../../Kitchen.bmp", "/etc/passwd", "\\Windows\\win.ini",
                           "\\\\server\\share\\a.bmp", "C:\\a.bmp", "c:a.bmp"})
    EXPECT_FALSE(staysInFolder(QString::fromLatin1(name))) << name;
}

TEST(DirectoryQuery, FindsOrdinaryFilesOnly) {
  TempFolder tree;
  tree.makeFolder(QStringLiteral("Graphics/Sub"));
  tree.write(QStringLiteral("Graphics/.hidden"));
  EXPECT_EQ(firstMatchingFile(tree.path() + QStringLiteral("\\GRAPHICS\\*.*")), QString());
  tree.write(QStringLiteral("Graphics/noext"));
  tree.write(QStringLiteral("Graphics/b.bmp"));
  for (const auto& [pattern, found] : {std::pair{"\\GRAPHICS\\*.*", "b.bmp"}, {"\\Graphics\\*.BMP", "b.bmp"}, {"\\Graphics\\?oext", "noext"}})
    EXPECT_EQ(firstMatchingFile(tree.path() + QLatin1String(pattern)), QLatin1String(found)) << pattern;
}

TEST(DirectoryQuery, MissingOrOddFoldersGiveNothingAndNeverFail) {
  TempFolder tree;
  for (const QString& pattern : {tree.path() + QStringLiteral("\\Nowhere\\*.*"), QString(), QStringLiteral("/proc/1/root/nothing/*.*")})
    EXPECT_EQ(firstMatchingFile(pattern), QString()) << pattern.toStdString();
}

TEST(WesternText, EveryByteSurvivesAReadAndAWrite) {
  QByteArray all;
  for (int b = 0; b < 256; ++b) all += static_cast<char>(b);
  EXPECT_EQ(toAnsi(fromAnsi(all)), all);
  EXPECT_EQ(fromAnsi(QByteArray("\x80\xE9\x93", 3)), QStringLiteral("\u20AC\u00E9\u201C"));
  EXPECT_EQ(toAnsi(QStringLiteral("\u20ACx\u4E2D")), QByteArray("\x80x?", 3));
}

TEST(ByteFiles, ReadBackWhatWasWrittenAndFailPastTheEnd) {
  ByteFile in = ByteFile::fromBytes(QByteArray("\x34\x12\x00\x80Set", 7));
  EXPECT_EQ(in.getInteger(), 0x1234);
  EXPECT_EQ(in.getInteger(), -32768);
  EXPECT_EQ(in.getText(3), QStringLiteral("Set"));
  EXPECT_EQ(failureOf([&] { in.getInteger(); }), Failure::InputPastEndOfFile);
  ByteFile half = ByteFile::fromBytes(QByteArray("\x01", 1));
  EXPECT_EQ(failureOf([&] { half.getInteger(); }), Failure::InputPastEndOfFile);
}

TEST(ByteFiles, OpeningFailsClearlyForMissingFilesAndFolders) {
  TempFolder tree;
  QString message;
  EXPECT_EQ(failureOf([&] { ByteFile::openForReading(tree.path() + QStringLiteral("\\missing.set")); }, &message), Failure::FileNotFound);
  EXPECT_TRUE(message.contains(QStringLiteral("missing.set")));
  EXPECT_THROW(ByteFile::openForWriting(tree.path() + QStringLiteral("\\no\\such\\folder\\x.set")), RuntimeFailure);
}

}  // namespace fh::test
