#include "SqliteFloor.h"

#include "BundledSession.h"
#include "game/GameState.h"
#include "platform/data/Database.h"

#include <sqlite3.h>

#include <chrono>
#include <stdexcept>
#include <string>
#include <vector>

namespace fh::bench {

namespace {

class Statement {
 public:
  Statement(sqlite3* db, const std::string& sql) {
    if (sqlite3_prepare_v2(db, sql.c_str(), -1, &m_statement, nullptr) != SQLITE_OK)
      throw std::runtime_error(sqlite3_errmsg(db));
  }
  ~Statement() { sqlite3_finalize(m_statement); }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  void bind(const char* name, int value) { sqlite3_bind_int(m_statement, index(name), value); }
  void bind(const char* name, const std::string& value) {
    sqlite3_bind_text(m_statement, index(name), value.c_str(), -1, SQLITE_TRANSIENT);
  }
  // Steps through every row and reads every column, as a recordset would.
  int readAll() {
    int rows = 0;
    while (sqlite3_step(m_statement) == SQLITE_ROW) {
      ++rows;
      for (int c = 0; c < sqlite3_column_count(m_statement); ++c) benchmark::DoNotOptimize(sqlite3_column_text(m_statement, c));
    }
    sqlite3_reset(m_statement);
    return rows;
  }
  int firstInt(int column) {
    const int value = sqlite3_step(m_statement) == SQLITE_ROW ? sqlite3_column_int(m_statement, column) : 0;
    sqlite3_reset(m_statement);
    return value;
  }

 private:
  int index(const char* name) const { return sqlite3_bind_parameter_index(m_statement, name); }
  sqlite3_stmt* m_statement = nullptr;
};

std::string savedStatement(sqlite3* db, const char* name) {
  std::string text;
  sqlite3_stmt* raw = nullptr;
  sqlite3_prepare_v2(db, (std::string("SELECT Statement FROM SavedQueries WHERE Name = '") + name + "'").c_str(), -1, &raw, nullptr);
  if (sqlite3_step(raw) == SQLITE_ROW) text = reinterpret_cast<const char*>(sqlite3_column_text(raw, 0));
  sqlite3_finalize(raw);
  if (text.empty()) throw std::runtime_error(std::string("no saved query ") + name);
  return text;
}

std::vector<std::string> spritesOf(sqlite3* db, const std::string& shot) {
  std::vector<std::string> names;
  sqlite3_stmt* raw = nullptr;
  sqlite3_prepare_v2(db, "SELECT Name FROM Sprites WHERE Shot = ? COLLATE NOCASE", -1, &raw, nullptr);
  sqlite3_bind_text(raw, 1, shot.c_str(), -1, SQLITE_TRANSIENT);
  while (sqlite3_step(raw) == SQLITE_ROW) names.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(raw, 0)));
  sqlite3_finalize(raw);
  return names;
}

}  // namespace

void ClickRowsBySqlite(benchmark::State& state) {
  BundledSession session;
  const int user = CurrentUserID;
  // The floor has the file to itself.
  GameDB->Close();
  GameDB.reset();
  sqlite3* db = nullptr;
  if (sqlite3_open_v2(session.databaseFile().toUtf8().constData(), &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
    state.SkipWithError("can't open the copied database");
    return;
  }
  {
    const std::string container = "PorchLight";
    const std::string shot = "FrontPorch";
    Statement row(db, savedStatement(db, "GetContainer"));
    Statement update(db, "UPDATE UserContainers SET CurrentState = :State WHERE \"User ID\" = :User AND Container = :Container");
    Statement stateScore(db, savedStatement(db, "StateScore"));
    Statement objectScore(db, savedStatement(db, "SelectionScore"));
    Statement backdrop(db, savedStatement(db, "SelectBackdrop"));
    Statement looks(db, savedStatement(db, "GetSpriteCelSources"));
    const std::vector<std::string> sprites = spritesOf(db, shot);
    row.bind(":SelectContainer", container);
    row.bind(":SelectUserID", user);
    update.bind(":User", user);
    update.bind(":Container", container);
    stateScore.bind(":SelectUserID", user);
    objectScore.bind(":SelectUserID", user);
    backdrop.bind(":SelectUserID", user);
    backdrop.bind(":TargetShot", shot);
    int lightState = row.firstInt(1);
    for (auto _ : state) {
      const auto start = std::chrono::steady_clock::now();
      row.readAll();
      lightState = lightState == 0 ? 1 : 0;
      update.bind(":State", lightState);
      update.readAll();
      stateScore.readAll();
      objectScore.readAll();
      backdrop.readAll();
      for (const std::string& sprite : sprites) {
        looks.bind(":Sprite", sprite);
        looks.readAll();
      }
      state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
  }
  sqlite3_close(db);
}

}  // namespace fh::bench
