#include "platform/data/FieldValue.h"

#include "platform/base/Failure.h"

#include <cmath>
#include <limits>

namespace fh {

namespace {

bool isNumber(const QVariant& v) {
  switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Bool:
      return true;
    default:
      return false;
  }
}

}  // namespace

QString FieldValue::toText() const {
  if (isNull()) throw RuntimeFailure(Failure::InvalidUseOfNull, m_what);
  return m_value.toString();
}

double FieldValue::number() const {
  if (isNull()) throw RuntimeFailure(Failure::InvalidUseOfNull, m_what);
  if (isNumber(m_value)) return m_value.toDouble();
  bool ok = false;
  const double value = m_value.toString().trimmed().toDouble(&ok);
  if (!ok) throw RuntimeFailure(Failure::TypeMismatch, m_what);
  return value;
}

i16 FieldValue::toI16() const { return CInt(number()); }

std::int32_t FieldValue::toLong() const {
  const double rounded = std::nearbyint(number());
  if (rounded < std::numeric_limits<std::int32_t>::min() || rounded > std::numeric_limits<std::int32_t>::max())
    throw RuntimeFailure(Failure::Overflow, m_what);
  return static_cast<std::int32_t>(rounded);
}

float FieldValue::toSingle() const { return static_cast<float>(number()); }

double FieldValue::toDouble() const { return number(); }

bool FieldValue::toBool() const {
  if (!isNull() && !isNumber(m_value)) {
    const QString text = m_value.toString().trimmed();
    if (text.compare(QStringLiteral("true"), Qt::CaseInsensitive) == 0) return true;
    if (text.compare(QStringLiteral("false"), Qt::CaseInsensitive) == 0) return false;
  }
  return number() != 0;
}

}  // namespace fh
