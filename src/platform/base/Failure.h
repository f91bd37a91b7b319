#pragma once

#include <QString>

#include <exception>
#include <string>

namespace fh {

// The platform's run-time failures, numbered as the platform numbers them.
enum class Failure : int {
  InvalidCall = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  FileNotFound = 53,
  DeviceUnavailable = 68,
  InputPastEndOfFile = 62,
  PathFileAccess = 75,
  PathNotFound = 76,
  ObjectNotSet = 91,
  InvalidUseOfNull = 94,
  InvalidFileFormat = 321,
  InvalidPropertyValue = 380,
  InvalidPicture = 481,
  PrinterError = 482,
  UpdateWithoutEdit = 3020,
  NoCurrentRecord = 3021,
  DatabaseFileNotFound = 3024,
  TooFewParameters = 3061,
  TableNotFound = 3078,
  DatabaseFailure = 3146,
  FieldNotUpdatable = 3164,
  RecordIsDeleted = 3167,
  ItemNotFound = 3265,
  ObjectClosed = 3420,
};

QString failureText(Failure kind);

// A run-time failure. Nothing catches it but the mouse dispatcher and the game clock tick, which
// swallow it silently; anywhere else it reaches the entry guard, which reports it and ends the program.
class RuntimeFailure : public std::exception {
 public:
  explicit RuntimeFailure(Failure kind, QString detail = {});

  Failure kind() const { return m_kind; }
  int number() const { return static_cast<int>(m_kind); }
  // What failed, where one is known: for a file that isn't there, its design name.
  const QString& detail() const { return m_detail; }
  // The platform's words, and what failed where one is known: "Item not found (query 'GetAllSprites')".
  QString message() const;
  const char* what() const noexcept override { return m_what.c_str(); }

 private:
  Failure m_kind;
  QString m_detail;
  std::string m_what;
};

// The program's `End`: thrown to leave everything at once; the entry guard or main() ends the process.
class ProgramEnded : public std::exception {
 public:
  const char* what() const noexcept override { return "program ended"; }
};

[[noreturn]] void EndProgram();

}  // namespace fh
