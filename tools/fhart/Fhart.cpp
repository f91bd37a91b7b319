#include "Fhart.h"

#include "BmpFile.h"
#include "SharedPalette.h"
#include "Subcommands.h"
#include "SvgPicture.h"

#include "platform/files/FileUpdate.h"

#include <QDir>
#include <QFileInfo>

namespace fh::fhart {

using tools::UsageProblem;

namespace {

const char* const kUsage = R"(Usage:
  fhart render [--palette-picture BMP_FILE] SVG_FOLDER OUT_FOLDER [SVG_FOLDER OUT_FOLDER]...
                                      draw every *.svg of each SVG_FOLDER as OUT_FOLDER/NAME.bmp
  fhart preview SVG_FILE PNG_FILE     draw one picture in full colour, to look at
  fhart --help                        show this help

Each picture is exactly as large as its SVG's width and height. render gives all pictures of all
folders one shared 256-colour palette, built from all of them together, and writes 8-bit BMP
files; a file whose bytes would not change is left alone. --palette-picture also writes the
palette itself as a 640 x 480 picture of its 256 colours, 16 by 16 swatches of 40 x 30. What the renderer does not draw as written (a clip
path, a blur...) is told with the file and line; world/art/STYLE.md says what it draws.
When a picture can't be drawn, render says why and writes nothing.
)";


void tellNotes(const RenderedPicture& picture, QTextStream& err) {
  for (const QString& note : picture.notes) err << "fhart: " << note << '\n';
}

// A folder of SVG sources and the folder its BMP files go to.
struct FolderPair {
  QDir sources;
  QDir targets;
  QStringList files;
};

struct RenderRequest {
  QString palettePicture;
  QList<FolderPair> folders;
};

RenderRequest renderRequest(QStringList args) {
  RenderRequest request;
  if (args.value(0) == QStringLiteral("--palette-picture")) {
    if (args.size() < 2) throw UsageProblem{QStringLiteral("--palette-picture needs the BMP file to write")};
    request.palettePicture = args[1];
    args = args.mid(2);
  }
  if (args.isEmpty() || args.size() % 2 != 0)
    throw UsageProblem{QStringLiteral("render needs an SVG folder and an output folder, or several such pairs")};
  for (int i = 0; i < args.size(); i += 2) {
    const QDir sources(args[i]);
    if (!sources.exists()) throw UsageProblem{QStringLiteral("there is no folder %1").arg(args[i])};
    if (!QDir().mkpath(args[i + 1])) throw UsageProblem{QStringLiteral("cannot make the folder %1").arg(args[i + 1])};
    request.folders << FolderPair{sources, QDir(args[i + 1]),
                                  sources.entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name)};
  }
  return request;
}

// The palette shown as a picture: 16 rows of 16 swatches, entry 0 at the top left.
QImage palettePicture(const QList<QRgb>& palette) {
  QImage picture(kPalettePictureWidth, kPalettePictureHeight, QImage::Format_Indexed8);
  picture.setColorTable(QList<QRgb>(palette.begin(), palette.end()));
  const int swatchWidth = kPalettePictureWidth / 16;
  const int swatchHeight = kPalettePictureHeight / 16;
  for (int y = 0; y < picture.height(); ++y) {
    uchar* line = picture.scanLine(y);
    for (int x = 0; x < picture.width(); ++x) line[x] = static_cast<uchar>((y / swatchHeight) * 16 + x / swatchWidth);
  }
  return picture;
}

// Writes the file unless it already holds these bytes; true when it was written.
bool writeIfChanged(const QString& target, const QByteArray& bytes) {
  const FileUpdate update = writeFileIfChanged(target, bytes);
  if (!update.error.isEmpty()) throw ArtProblem{QStringLiteral("cannot write %1 (%2)").arg(target, update.error)};
  return update.written;
}

int render(const QStringList& args, QTextStream& out, QTextStream& err) {
  const RenderRequest request = renderRequest(args);

  // Every picture is drawn before anything is written, so that one broken source leaves all
  // folders as they were.
  QList<QList<RenderedPicture>> pictures;
  QStringList problems;
  qsizetype fileCount = 0;
  for (const FolderPair& folder : request.folders) {
    pictures.append(QList<RenderedPicture>());
    fileCount += folder.files.size();
    for (const QString& file : folder.files) {
      try {
        pictures.back() << renderSvg(folder.sources.filePath(file));
        tellNotes(pictures.back().back(), err);
      } catch (const ArtProblem& problem) {
        problems << problem.text;
      }
    }
  }
  if (!problems.isEmpty()) {
    for (const QString& problem : problems) err << "fhart: " << problem << '\n';
    err << "fhart: " << problems.size() << " of " << fileCount << " pictures can't be drawn; no BMP file was written\n";
    return 1;
  }

  QList<QImage> images;
  for (const QList<RenderedPicture>& folder : pictures)
    for (const RenderedPicture& picture : folder) images << picture.image;
  const QList<QRgb> palette = sharedPalette(images);
  for (int i = 0; i < request.folders.size(); ++i) {
    const QDir& targets = request.folders[i].targets;
    int written = 0;
    for (const RenderedPicture& picture : pictures[i]) {
      const QString target = targets.filePath(QFileInfo(picture.name).completeBaseName() + QStringLiteral(".bmp"));
      if (writeIfChanged(target, bmpBytes(inPalette(picture.image, palette)))) ++written;
    }
    const qsizetype count = pictures[i].size();
    out << "fhart: " << count << (count == 1 ? " picture" : " pictures") << " in "
        << QDir::toNativeSeparators(targets.path()) << ", " << written << " written, " << count - written << " unchanged\n";
  }
  if (!request.palettePicture.isEmpty()) {
    const bool written = writeIfChanged(request.palettePicture, bmpBytes(palettePicture(palette)));
    out << "fhart: the palette in " << QDir::toNativeSeparators(request.palettePicture)
        << (written ? ", written\n" : ", unchanged\n");
  }
  return 0;
}

int preview(const QStringList& args, QTextStream& out, QTextStream& err) {
  if (args.size() != 2) throw UsageProblem{QStringLiteral("preview needs an SVG file and a PNG file to write")};
  if (!QFileInfo(args[0]).isFile()) throw UsageProblem{QStringLiteral("there is no SVG file %1").arg(args[0])};
  const RenderedPicture picture = renderSvg(args[0]);
  tellNotes(picture, err);
  if (!picture.image.convertToFormat(QImage::Format_RGB888).save(args[1], "PNG"))
    throw ArtProblem{QStringLiteral("cannot write %1").arg(args[1])};
  out << "fhart: drew " << picture.name << " (" << picture.image.width() << " x " << picture.image.height()
      << ") into " << args[1] << '\n';
  return 0;
}

}  // namespace

int runFhart(const QStringList& arguments, QTextStream& out, QTextStream& err) {
  try {
    return tools::runSubcommands(QStringLiteral("fhart"), kUsage,
                                 {{QStringLiteral("render"), [&](const QStringList& args) { return render(args, out, err); }},
                                  {QStringLiteral("preview"), [&](const QStringList& args) { return preview(args, out, err); }}},
                                 arguments, out, err);
  } catch (const ArtProblem& problem) {
    err << "fhart: " << problem.text << '\n';
    return 1;
  }
}

}  // namespace fh::fhart
