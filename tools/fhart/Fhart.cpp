#include "Fhart.h"

#include "BmpFile.h"
#include "SharedPalette.h"
#include "SvgPicture.h"

#include "platform/FileUpdate.h"

#include <QDir>
#include <QFileInfo>

namespace fh::fhart {

namespace {

const char* const kUsage = R"(Usage:
  fhart render SVG_FOLDER OUT_FOLDER  draw every *.svg of SVG_FOLDER as OUT_FOLDER/NAME.bmp
  fhart preview SVG_FILE PNG_FILE     draw one picture in full colour, to look at
  fhart --help                        show this help

Each picture is exactly as large as its SVG's width and height. render gives all pictures one
shared 256-colour palette, built from all of them together, and writes 8-bit BMP files; a file
whose bytes would not change is left alone. What the renderer does not draw as written (a clip
path, a blur...) is told with the file and line; world/art/STYLE.md says what it draws.
When a picture can't be drawn, render says why and writes nothing.
)";

// Thrown for what the person at the command line must mend: arguments, a missing folder or file.
struct UsageProblem {
  QString text;
};

void tellNotes(const RenderedPicture& picture, QTextStream& err) {
  for (const QString& note : picture.notes) err << "fhart: " << note << '\n';
}

int render(const QStringList& args, QTextStream& out, QTextStream& err) {
  if (args.size() != 2) throw UsageProblem{QStringLiteral("render needs an SVG folder and an output folder")};
  const QDir sources(args[0]);
  if (!sources.exists()) throw UsageProblem{QStringLiteral("there is no folder %1").arg(args[0])};
  if (!QDir().mkpath(args[1])) throw UsageProblem{QStringLiteral("cannot make the folder %1").arg(args[1])};
  const QDir targets(args[1]);

  const QStringList files = sources.entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
  QList<RenderedPicture> pictures;
  QStringList problems;
  for (const QString& file : files) {
    try {
      pictures << renderSvg(sources.filePath(file));
      tellNotes(pictures.back(), err);
    } catch (const ArtProblem& problem) {
      problems << problem.text;
    }
  }
  if (!problems.isEmpty()) {
    for (const QString& problem : problems) err << "fhart: " << problem << '\n';
    err << "fhart: " << problems.size() << " of " << files.size() << " pictures can't be drawn; no BMP file was written\n";
    return 1;
  }

  QList<QImage> images;
  for (const RenderedPicture& picture : pictures) images << picture.image;
  const QList<QRgb> palette = sharedPalette(images);
  int written = 0;
  for (const RenderedPicture& picture : pictures) {
    const QString target = targets.filePath(QFileInfo(picture.name).completeBaseName() + QStringLiteral(".bmp"));
    const FileUpdate update = writeFileIfChanged(target, bmpBytes(inPalette(picture.image, palette)));
    if (!update.error.isEmpty()) throw ArtProblem{QStringLiteral("cannot write %1 (%2)").arg(target, update.error)};
    if (update.written) ++written;
  }
  out << "fhart: " << pictures.size() << (pictures.size() == 1 ? " picture" : " pictures") << " in "
      << QDir::toNativeSeparators(targets.path()) << ", " << written << " written, " << pictures.size() - written
      << " unchanged\n";
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
  const QString command = arguments.value(0);
  if (command == QStringLiteral("--help") || command == QStringLiteral("-h")) {
    out << kUsage;
    return 0;
  }
  try {
    if (command == QStringLiteral("render")) return render(arguments.mid(1), out, err);
    if (command == QStringLiteral("preview")) return preview(arguments.mid(1), out, err);
    throw UsageProblem{command.isEmpty() ? QStringLiteral("no command given") : QStringLiteral("unknown command '%1'").arg(command)};
  } catch (const UsageProblem& problem) {
    err << "fhart: " << problem.text << "\n\n" << kUsage;
    return 2;
  } catch (const ArtProblem& problem) {
    err << "fhart: " << problem.text << '\n';
    return 1;
  }
}

}  // namespace fh::fhart
