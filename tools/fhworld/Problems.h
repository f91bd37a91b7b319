#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace fh::fhworld {

// One broken thing of a world: where it stands and a plain sentence. A missing picture or sound
// file also names the file, so that the list of missing art can be compared with the artists' list.
struct Problem {
  QString where;
  QString what;
  QString missingFile;  // "Graphics/Kitchen.bmp" when the problem is a missing file

  QString line() const { return where.isEmpty() ? what : where + QStringLiteral(": ") + what; }
};

class Problems {
 public:
  void add(const QString& where, const QString& what) { m_list.push_back({where, what, {}}); }
  void addMissingFile(const QString& where, const QString& file) {
    m_list.push_back({where, QStringLiteral("the file %1 is missing").arg(file), file});
  }
  const std::vector<Problem>& all() const { return m_list; }
  bool empty() const { return m_list.empty(); }

 private:
  std::vector<Problem> m_list;
};

}  // namespace fh::fhworld
