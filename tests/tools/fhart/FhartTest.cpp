#include "Fhart.h"
#include "SvgSource.h"

#include "TempFolder.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QImage>

#include <gtest/gtest.h>

namespace fh::test {
namespace {

struct FhartRun { int code = -1; QString out, err; };

FhartRun fhart(const QStringList& arguments) {
  FhartRun run;
  QTextStream out(&run.out);
  QTextStream err(&run.err);
  run.code = fhart::runFhart(arguments, out, err);
  return run;
}

QByteArray svg(int width, int height, const QString& body) {
  return QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%2\" viewBox=\"0 0 %1 %2\">\n%3\n</svg>\n")
      .arg(width).arg(height).arg(body).toUtf8();
}

// A room-like picture: flat house colours, outlined shapes with antialiased curves, and text.
QString room(const QString& wall) {
  return QStringLiteral(
             "<rect width=\"100%\" height=\"100%\" fill=\"%1\"/>\n"
             "<rect x=\"0\" y=\"40\" width=\"120\" height=\"20\" fill=\"#c98b52\"/>\n"
             "<circle cx=\"30\" cy=\"20\" r=\"12\" fill=\"#7cc4e8\" stroke=\"#3b2a20\" stroke-width=\"2\"/>\n"
             "<text x=\"50\" y=\"30\" font-family=\"Liberation Sans\" font-weight=\"bold\" font-size=\"14\" fill=\"#3b2a20\">Tap</text>")
      .arg(wall);
}

quint32 littleEndian(const QByteArray& bytes, int offset, int size) {
  quint32 value = 0;
  for (int i = size - 1; i >= 0; --i) value = (value << 8) | static_cast<uchar>(bytes[offset + i]);
  return value;
}

// Pictures of several folders, each rendered into its own, share one palette of 256 colours, which
// can also be written as a picture of 16 by 16 swatches.
TEST(FhartRender, PicturesTakeTheirSizeAndShareOnePaletteThatCanBeWrittenAsAPicture) {
  TempFolder folder;
  folder.write(QStringLiteral("house/Kitchen.svg"), svg(120, 60, room(QStringLiteral("#f6e7c8"))));
  folder.write(QStringLiteral("windows/Tiny.svg"),
               QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"7px\" height=\"3\"><rect width=\"7\" height=\"3\" fill=\"#e04a3a\"/></svg>"));
  const FhartRun run = fhart({"render", "--palette-picture", folder.at("win/Palette.bmp"), folder.at("house"), folder.at("out"),
                              folder.at("windows"), folder.at("win")});
  ASSERT_EQ(run.code, 0) << run.err.toStdString();
  EXPECT_TRUE(run.err.isEmpty()) << run.err.toStdString();

  const QImage kitchen(folder.at(QStringLiteral("out/Kitchen.bmp")));
  const QImage tiny(folder.at(QStringLiteral("win/Tiny.bmp")));
  EXPECT_FALSE(QFileInfo::exists(folder.at(QStringLiteral("out/Tiny.bmp"))));
  EXPECT_EQ(kitchen.size(), QSize(120, 60));
  EXPECT_EQ(tiny.size(), QSize(7, 3));
  EXPECT_EQ(kitchen.format(), QImage::Format_Indexed8);
  EXPECT_EQ(kitchen.colorTable(), tiny.colorTable());
  EXPECT_EQ(kitchen.pixel(5, 5), qRgb(0xf6, 0xe7, 0xc8));
  EXPECT_EQ(kitchen.pixel(30, 20), qRgb(0x7c, 0xc4, 0xe8));
  EXPECT_EQ(tiny.pixel(3, 1), qRgb(0xe0, 0x4a, 0x3a));

  // The file itself: 8 bits a pixel, a table of 256 colours, however few the picture uses.
  const QByteArray header = fileBytes(folder.at(QStringLiteral("win/Tiny.bmp")));
  EXPECT_EQ(header.left(2), QByteArray("BM"));
  EXPECT_EQ(littleEndian(header, 28, 2), 8u);
  EXPECT_EQ(littleEndian(header, 46, 4), 256u);

  const QImage palette(folder.at(QStringLiteral("win/Palette.bmp")));
  ASSERT_EQ(palette.size(), QSize(640, 480));
  EXPECT_EQ(palette.colorTable(), kitchen.colorTable());
  // Each swatch of 40 x 30 is its entry, row by row.
  for (int entry : {0, 17, 128, 255}) {
    const int left = (entry % 16) * 40;
    const int top = (entry / 16) * 30;
    EXPECT_EQ(palette.pixelIndex(left, top), entry);
    EXPECT_EQ(palette.pixelIndex(left + 39, top + 29), entry);
  }
}

TEST(FhartRender, FlatColoursStayExactAmongMoreColoursThanThePaletteHolds) {
  TempFolder folder;
  // Two long gradients give far more than 256 colours; the flat bands must still come out exact,
  // and the gradient close to what was drawn, without dither noise in the bands.
  const QString body = QStringLiteral(
      "<linearGradient id=\"a\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\"0\"><stop offset=\"0\" stop-color=\"#000000\"/>"
      "<stop offset=\"1\" stop-color=\"#ffd75e\"/></linearGradient>"
      "<linearGradient id=\"b\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\"0\"><stop offset=\"0\" stop-color=\"#3f8fc0\"/>"
      "<stop offset=\"1\" stop-color=\"#ffffff\"/></linearGradient>"
      "<rect width=\"600\" height=\"20\" fill=\"url(#a)\"/><rect y=\"20\" width=\"600\" height=\"20\" fill=\"url(#b)\"/>"
      "<rect y=\"40\" width=\"200\" height=\"20\" fill=\"#cfe0b4\"/><rect x=\"200\" y=\"40\" width=\"200\" height=\"20\" fill=\"#9b5d8f\"/>"
      "<rect x=\"400\" y=\"40\" width=\"200\" height=\"20\" fill=\"#6fb04a\"/>");
  folder.write(QStringLiteral("art/Bands.svg"), svg(600, 60, body));
  ASSERT_EQ(fhart({QStringLiteral("render"), folder.at(QStringLiteral("art")), folder.at(QStringLiteral("out"))}).code, 0);
  ASSERT_EQ(fhart({QStringLiteral("preview"), folder.at(QStringLiteral("art/Bands.svg")), folder.at(QStringLiteral("full.png"))}).code, 0);

  const QImage indexed(folder.at(QStringLiteral("out/Bands.bmp")));
  const QImage full = QImage(folder.at(QStringLiteral("full.png"))).convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(full.size(), indexed.size());
  for (int x = 0; x < 600; ++x) {
    const QRgb band = x < 200 ? qRgb(0xcf, 0xe0, 0xb4) : x < 400 ? qRgb(0x9b, 0x5d, 0x8f) : qRgb(0x6f, 0xb0, 0x4a);
    ASSERT_EQ(indexed.pixel(x, 50), band) << "x " << x;
    for (int y : {10, 30}) {
      const QRgb drawn = full.pixel(x, y);
      const QRgb kept = indexed.pixel(x, y);
      ASSERT_LE(std::abs(qRed(drawn) - qRed(kept)) + std::abs(qGreen(drawn) - qGreen(kept)) + std::abs(qBlue(drawn) - qBlue(kept)), 24)
          << "x " << x << " y " << y;
    }
  }
}

// Widths that are no multiple of 4 have padded lines in the BMP file, which must not vary either.
TEST(FhartRender, UnchangedPicturesAreNotRewritten) {
  TempFolder folder;
  const QString art = folder.at(QStringLiteral("art"));
  const QString out = folder.at(QStringLiteral("out"));
  folder.write(QStringLiteral("art/Hall.svg"), svg(41, 30, room(QStringLiteral("#cfe3ee"))));
  folder.write(QStringLiteral("art/Porch.svg"), svg(41, 30, room(QStringLiteral("#f4cdb0"))));
  ASSERT_EQ(fhart({QStringLiteral("render"), art, out}).code, 0);

  const QDateTime longAgo(QDate(2001, 1, 1), QTime(12, 0));
  for (const char* name : {"out/Hall.bmp", "out/Porch.bmp"}) ASSERT_TRUE(setModified(folder.at(QLatin1String(name)), longAgo));
  const FhartRun again = fhart({QStringLiteral("render"), art, out});
  ASSERT_EQ(again.code, 0);
  EXPECT_TRUE(again.out.contains(QStringLiteral("0 written, 2 unchanged"))) << again.out.toStdString();
  EXPECT_EQ(QFileInfo(folder.at(QStringLiteral("out/Hall.bmp"))).lastModified(), longAgo);

  // Moving a crisp shape in one picture brings no new colour, so the palette stays and only that
  // picture is written.
  const QString doormat = QStringLiteral("<rect x=\"%1\" y=\"2\" width=\"4\" height=\"4\" fill=\"#3b2a20\"/>");
  folder.write(QStringLiteral("art/Porch.svg"), svg(41, 30, room(QStringLiteral("#f4cdb0")) + doormat.arg(2)));
  ASSERT_EQ(fhart({QStringLiteral("render"), art, out}).code, 0);
  ASSERT_TRUE(setModified(folder.at(QStringLiteral("out/Hall.bmp")), longAgo));
  folder.write(QStringLiteral("art/Porch.svg"), svg(41, 30, room(QStringLiteral("#f4cdb0")) + doormat.arg(9)));
  const FhartRun changed = fhart({QStringLiteral("render"), art, out});
  EXPECT_TRUE(changed.out.contains(QStringLiteral("1 written, 1 unchanged"))) << changed.out.toStdString();
  EXPECT_EQ(QFileInfo(folder.at(QStringLiteral("out/Hall.bmp"))).lastModified(), longAgo);
}

TEST(FhartRender, PicturesThatCantBeDrawnAreNamedAndNothingIsWritten) {
  TempFolder folder;
  folder.write(QStringLiteral("art/Good.svg"), svg(10, 10, QStringLiteral("<rect width=\"10\" height=\"10\" fill=\"#6fb04a\"/>")));
  folder.write(QStringLiteral("art/Broken.svg"), QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"10\" height=\"10\">\n<rect width=\"10\"\n"));
  folder.write(QStringLiteral("art/NoSize.svg"), QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 10 10\"/>"));
  folder.write(QStringLiteral("art/Millimetres.svg"), QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"20mm\" height=\"10\"/>"));
  folder.write(QStringLiteral("art/Text.svg"), QByteArray("a note, not a picture"));
  const FhartRun run = fhart({QStringLiteral("render"), folder.at(QStringLiteral("art")), folder.at(QStringLiteral("out"))});
  EXPECT_EQ(run.code, 1);
  for (const char* told : {"Broken.svg:3:", "NoSize.svg: the <svg> element needs a width and a height",
                           "Millimetres.svg: width=\"20mm\" is not a whole number of pixels", "Text.svg:1: not an SVG file"})
    EXPECT_TRUE(run.err.contains(QString::fromLatin1(told))) << run.err.toStdString();
  EXPECT_FALSE(run.err.contains(QStringLiteral("Good.svg")));
  EXPECT_FALSE(QFileInfo::exists(folder.at(QStringLiteral("out/Good.bmp"))));
}

TEST(FhartNotes, WhatTheRendererLeavesOutIsToldWithFileAndLine) {
  TempFolder folder;
  const QString body = QStringLiteral(
      "<clipPath id=\"c\"><rect width=\"5\" height=\"5\"/></clipPath>\n"            // line 2
      "<rect width=\"9\" height=\"9\" fill=\"#ffffff\" clip-path=\"url(#c)\"/>\n"  // 3
      "<rect width=\"9\" height=\"9\" style=\"fill:rgba(0,0,0,0.5)\"/>\n"          // 4
      "<radialGradient id=\"g\" cx=\"0.5\" cy=\"0.5\"><stop offset=\"0\" stop-color=\"#ffd75e\"/></radialGradient>\n"  // 5
      "<rect width=\"9\" height=\"9\" fill=\"url(#nothing)\"/>\n"                  // 6
      "<metadata><rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"/></metadata>");
  folder.write(QStringLiteral("art/Odd.svg"), svg(10, 10, body));
  const FhartRun run = fhart({QStringLiteral("render"), folder.at(QStringLiteral("art")), folder.at(QStringLiteral("out"))});
  EXPECT_EQ(run.code, 0);
  const QStringList lines = run.err.split(u'\n', Qt::SkipEmptyParts);
  auto told = [&](const QString& start) {
    return std::any_of(lines.begin(), lines.end(), [&](const QString& line) { return line.startsWith(QStringLiteral("fhart: Odd.svg:") + start); });
  };
  for (const char* note : {"2: <clipPath> is not understood", "3: clip-path has no effect", "4: fill rgba(0,0,0,0.5) paints black",
                           "5: <radialGradient> without an r", "6: fill points to #nothing"})
    EXPECT_TRUE(told(QString::fromLatin1(note))) << run.err.toStdString();
  EXPECT_EQ(lines.size(), 5) << run.err.toStdString();
  EXPECT_TRUE(QFileInfo::exists(folder.at(QStringLiteral("out/Odd.bmp"))));
}

TEST(FhartNotes, AFontListIsCutToItsFirstInstalledFamily) {
  EXPECT_EQ(fhart::withOneFontFamily("<text font-family=\"Liberation Sans, Arial, sans-serif\">"), QByteArray("<text font-family=\"Liberation Sans\">"));
  EXPECT_EQ(fhart::withOneFontFamily("<text style=\"font-weight:bold; font-family: 'No Such Face', sans-serif ;\">"),
            QByteArray("<text style=\"font-weight:bold; font-family: sans-serif ;\">"));
  EXPECT_EQ(fhart::withOneFontFamily("<text font-family='Liberation Sans'>"), QByteArray("<text font-family='Liberation Sans'>"));

  // Drawn, the list gives what the single name gives.
  TempFolder folder;
  const QString text = QStringLiteral("<text x=\"2\" y=\"20\" font-family=\"%1\" font-weight=\"bold\" font-size=\"18\">Ragged</text>");
  folder.write(QStringLiteral("List.svg"), svg(80, 24, text.arg(QStringLiteral("Liberation Sans, Arial, sans-serif"))));
  folder.write(QStringLiteral("One.svg"), svg(80, 24, text.arg(QStringLiteral("Liberation Sans"))));
  ASSERT_EQ(fhart({QStringLiteral("preview"), folder.at(QStringLiteral("List.svg")), folder.at(QStringLiteral("List.png"))}).code, 0);
  ASSERT_EQ(fhart({QStringLiteral("preview"), folder.at(QStringLiteral("One.svg")), folder.at(QStringLiteral("One.png"))}).code, 0);
  EXPECT_EQ(QImage(folder.at(QStringLiteral("List.png"))), QImage(folder.at(QStringLiteral("One.png"))));
}

TEST(FhartCommandLine, FoldersAndArgumentsAreChecked) {
  TempFolder folder;
  folder.makeFolder(QStringLiteral("empty"));
  const FhartRun nothing = fhart({QStringLiteral("render"), folder.at(QStringLiteral("empty")), folder.at(QStringLiteral("out"))});
  EXPECT_EQ(nothing.code, 0);
  EXPECT_TRUE(nothing.out.contains(QStringLiteral("0 pictures"))) << nothing.out.toStdString();

  const FhartRun missing = fhart({QStringLiteral("render"), folder.at(QStringLiteral("gone")), folder.at(QStringLiteral("out"))});
  EXPECT_EQ(missing.code, 2);
  EXPECT_TRUE(missing.err.contains(QStringLiteral("there is no folder"))) << missing.err.toStdString();
  EXPECT_EQ(fhart({QStringLiteral("preview"), folder.at(QStringLiteral("gone.svg")), folder.at(QStringLiteral("x.png"))}).code, 2);
  EXPECT_EQ(fhart({QStringLiteral("render"), folder.at(QStringLiteral("empty"))}).code, 2);
  EXPECT_EQ(fhart({QStringLiteral("render"), QStringLiteral("--palette-picture")}).code, 2);
  EXPECT_EQ(fhart({QStringLiteral("draw")}).code, 2);
  EXPECT_EQ(fhart({QStringLiteral("--help")}).code, 0);
}

}  // namespace
}  // namespace fh::test
