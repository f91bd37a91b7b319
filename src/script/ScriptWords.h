#pragma once

#include <QString>
#include <QStringList>

namespace fh {

// The words of one script line, numbered from 0; word 0 is the command. There is always one word
// more than the line holds, and it is empty: that is what lets a left-out last argument read as
// empty. Commands read their arguments by fixed index, so a line with too few words fails there.
class ScriptWords {
 public:
  // Splits at every single blank, and nothing else: no quoting, a tab belongs to its word, two
  // blanks make an empty word between them, a leading blank an empty word 0. Every word is lower-cased.
  explicit ScriptWords(const QString& line);

  // Word `index`; past the last (empty) word this is a Subscript out of range failure.
  const QString& word(int index) const;
  // The words of the line, without the empty one behind them.
  int count() const { return static_cast<int>(m_words.size()) - 1; }

 private:
  QStringList m_words;
};

}  // namespace fh
