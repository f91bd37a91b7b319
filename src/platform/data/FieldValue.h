#pragma once

#include "platform/base/Values.h"

#include <QString>
#include <QVariant>

namespace fh {

// The value of a field, as a recordset gives it: Null is a value of its own, distinct from empty
// text and 0. Reading Null as a number or as text is "Invalid use of Null"; text that is no number
// read as a number is a "Type mismatch". `what` names the field in such failures.
class FieldValue {
 public:
  FieldValue(QVariant value, QString what) : m_value(std::move(value)), m_what(std::move(what)) {}

  bool isNull() const { return m_value.isNull(); }
  const QVariant& variant() const { return m_value; }

  QString toText() const;
  i16 toI16() const;
  std::int32_t toLong() const;
  float toSingle() const;
  double toDouble() const;
  // Numbers are true when not 0; the texts "True" and "False" in any case are read too.
  bool toBool() const;

 private:
  double number() const;

  QVariant m_value;
  QString m_what;
};

}  // namespace fh
