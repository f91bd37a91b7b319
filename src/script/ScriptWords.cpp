#include "script/ScriptWords.h"

#include "platform/base/Failure.h"

namespace fh {

ScriptWords::ScriptWords(const QString& line)
    : m_words(line.toLower().split(QLatin1Char(' '), Qt::KeepEmptyParts)) {
  m_words.append(QString());
}

const QString& ScriptWords::word(int index) const {
  if (index < 0 || index >= m_words.size())
    throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("script word %1").arg(index));
  return m_words[index];
}

}  // namespace fh
