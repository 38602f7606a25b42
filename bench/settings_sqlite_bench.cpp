// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The same work done by SQLite: a table with an index over section and name id, prepared statements. Getting
// and setting work in memory, with one transaction around all; loading reads every row of a file.
#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>

#include "bench/scratch_file.h"
#include "bench/settings_work.h"

namespace bench {
namespace {

void Check(int result) {
  if (result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE) return;
  std::fprintf(stderr, "SQLite: %s\n", sqlite3_errstr(result));
  std::abort();
}

class Database {
 public:
  explicit Database(const char* path) { Check(sqlite3_open(path, &m_Database)); }
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  ~Database() { sqlite3_close(m_Database); }
  void Execute(const char* text) { Check(sqlite3_exec(m_Database, text, nullptr, nullptr, nullptr)); }
  sqlite3* Get() const { return m_Database; }

 private:
  sqlite3* m_Database = nullptr;
};

class Statement {
 public:
  Statement(const Database& database, const char* text) {
    Check(sqlite3_prepare_v2(database.Get(), text, -1, &m_Statement, nullptr));
  }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  ~Statement() { sqlite3_finalize(m_Statement); }
  void Bind(int place, int value) { Check(sqlite3_bind_int(m_Statement, place, value)); }
  bool Step() {
    const int result = sqlite3_step(m_Statement);
    Check(result);
    return result == SQLITE_ROW;
  }
  int Column(int index) const { return sqlite3_column_int(m_Statement, index); }
  void Reset() { Check(sqlite3_reset(m_Statement)); }

 private:
  sqlite3_stmt* m_Statement = nullptr;
};

void Fill(Database& database, const benchmark::State& state) {
  database.Execute("CREATE TABLE field (section INTEGER, name INTEGER, value INTEGER)");
  database.Execute("CREATE UNIQUE INDEX by_name ON field (section, name)");
  database.Execute("BEGIN");
  Statement insert(database, "INSERT INTO field VALUES (?, ?, ?)");
  int value = 0;
  for (const FieldKey& key : MakeKeys(state)) {
    insert.Bind(1, static_cast<int>(key.section));
    insert.Bind(2, key.nameId);
    insert.Bind(3, value++);
    insert.Step();
    insert.Reset();
  }
  database.Execute("COMMIT");
}

void SettingsGetPeerSqlite(benchmark::State& state) {
  Database database(":memory:");
  Fill(database, state);
  database.Execute("BEGIN");
  Statement select(database, "SELECT value FROM field WHERE section = ? AND name = ?");
  RunOver(state, MakeQuestions(state), [&select](const FieldKey& key) {
    select.Bind(1, static_cast<int>(key.section));
    select.Bind(2, key.nameId);
    const int value = select.Step() ? select.Column(0) : 0;
    select.Reset();
    return value;
  });
}

void SettingsSetPeerSqlite(benchmark::State& state) {
  Database database(":memory:");
  Fill(database, state);
  database.Execute("BEGIN");
  Statement update(database, "UPDATE field SET value = ? WHERE section = ? AND name = ?");
  int value = 0;
  RunOver(state, MakeQuestions(state), [&](const FieldKey& key) {
    update.Bind(1, ++value);
    update.Bind(2, static_cast<int>(key.section));
    update.Bind(3, key.nameId);
    update.Step();
    update.Reset();
    return value;
  });
}

void SettingsLoadPeerSqlite(benchmark::State& state) {
  const std::string path = ScratchPath("settings.sqlite");
  std::remove(path.c_str());
  {
    Database database(path.c_str());
    Fill(database, state);
  }
  for (auto _ : state) {
    const Database database(path.c_str());
    Statement select(database, "SELECT section, name, value FROM field");
    long long sum = 0;
    while (select.Step()) sum += select.Column(0) ^ select.Column(1) ^ select.Column(2);
    benchmark::DoNotOptimize(sum);
  }
  CountFields(state);
}

BENCHMARK(SettingsGetPeerSqlite)->Apply(AllShapes);
BENCHMARK(SettingsSetPeerSqlite)->Apply(AllShapes);
BENCHMARK(SettingsLoadPeerSqlite)->Apply(Loads);

}  // namespace
}  // namespace bench
