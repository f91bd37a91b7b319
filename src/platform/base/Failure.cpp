#include "platform/base/Failure.h"

namespace fh {

QString failureText(Failure kind) {
  switch (kind) {
    case Failure::InvalidCall: return QStringLiteral("Invalid procedure call or argument");
    case Failure::Overflow: return QStringLiteral("Overflow");
    case Failure::SubscriptOutOfRange: return QStringLiteral("Subscript out of range");
    case Failure::DivisionByZero: return QStringLiteral("Division by zero");
    case Failure::TypeMismatch: return QStringLiteral("Type mismatch");
    case Failure::FileNotFound: return QStringLiteral("File not found");
    case Failure::DeviceUnavailable: return QStringLiteral("Device unavailable");
    case Failure::InputPastEndOfFile: return QStringLiteral("Input past end of file");
    case Failure::PathFileAccess: return QStringLiteral("Path/File access error");
    case Failure::PathNotFound: return QStringLiteral("Path not found");
    case Failure::ObjectNotSet: return QStringLiteral("Object variable not set");
    case Failure::InvalidUseOfNull: return QStringLiteral("Invalid use of Null");
    case Failure::InvalidFileFormat: return QStringLiteral("Invalid file format");
    case Failure::InvalidPropertyValue: return QStringLiteral("Invalid property value");
    case Failure::InvalidPicture: return QStringLiteral("Invalid picture");
    case Failure::PrinterError: return QStringLiteral("Printer error");
    case Failure::UpdateWithoutEdit: return QStringLiteral("Update or CancelUpdate without AddNew or Edit");
    case Failure::NoCurrentRecord: return QStringLiteral("No current record");
    case Failure::DatabaseFileNotFound: return QStringLiteral("Could not find file");
    case Failure::TooFewParameters: return QStringLiteral("Too few parameters");
    case Failure::TableNotFound: return QStringLiteral("Cannot find the input table or query");
    case Failure::DatabaseFailure: return QStringLiteral("Database operation failed");
    case Failure::FieldNotUpdatable: return QStringLiteral("Field can't be updated");
    case Failure::RecordIsDeleted: return QStringLiteral("Record is deleted");
    case Failure::ItemNotFound: return QStringLiteral("Item not found");
    case Failure::ObjectClosed: return QStringLiteral("Object invalid or no longer set");
  }
  return QStringLiteral("Application-defined error");
}

RuntimeFailure::RuntimeFailure(Failure kind, QString detail)
    : m_kind(kind), m_detail(std::move(detail)), m_what(message().toStdString()) {}

QString RuntimeFailure::message() const {
  QString text = failureText(m_kind);
  if (!m_detail.isEmpty()) text += QStringLiteral(" (%1)").arg(m_detail);
  return text;
}

void EndProgram() { throw ProgramEnded(); }

}  // namespace fh
