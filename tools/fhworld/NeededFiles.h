#pragma once

#include <QString>

#include <vector>

namespace fh::fhworld {

// A picture or sound file under the resource root ("Graphics/Kitchen.bmp") and what needs it.
struct NeededFile {
  QString path;
  QString usedBy;
};

// The files a world needs, each once (names are compared without regard to case, as the game
// finds them), in the order they were first met.
class NeededFiles {
 public:
  void add(const QString& path, const QString& usedBy) {
    for (const NeededFile& file : m_files) {
      if (file.path.compare(path, Qt::CaseInsensitive) == 0) return;
    }
    m_files.push_back({path, usedBy});
  }
  const std::vector<NeededFile>& all() const { return m_files; }

 private:
  std::vector<NeededFile> m_files;
};

}  // namespace fh::fhworld
