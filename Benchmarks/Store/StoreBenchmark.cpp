// SPDX-License-Identifier: Apache-2.0
// Measures the saves after each console of a full refresh, against the same transactions in plain SQLite calls.
//
// Each run goes through 5,000 consoles, gives each one a new version and saves it, which makes one durable transaction
// per console. Opening and closing are not measured. Both stores have the same schema, size, disk and settings; the
// reference keeps its three statements prepared.
#include "Application/Model/Corvel.h"
#include "Application/Model/StoreStack.h"
#include "Benchmarks/Program.h"
#include "Tests/Support/ScratchFolder.h"

#include <cstdlib>
#include <filesystem>
#include <sqlite3.h>
#include <stdexcept>

namespace lodestar
{
namespace
{

constexpr int consoles = 5000;

void check(bool holds, const char* what)
{
    if (!holds) {
        throw std::runtime_error(what);
    }
}

std::unique_ptr<ObjectContext> openStore(const std::string& path)
{
    auto opened = ObjectContext::open(path, StoreStack::managedObjectModel());
    check(opened.ok(), "open");
    return std::move(opened).value();
}

std::string makeStore(const std::string& path)
{
    const auto context = openStore(path);
    for (int i = 0; i < consoles; ++i) {
        const auto corvel = std::static_pointer_cast<Corvel>(context->insertNewObject(Corvel::entityName));
        corvel->setName("Console " + std::to_string(i));
        corvel->setAddress("console-" + std::to_string(i) + ".example.org");
        corvel->setUsername("operator");
        corvel->setPassword("password " + std::to_string(i));
        corvel->setDemo(false);
        corvel->setVersion("V8R8.1.0.(null)");
    }
    check(context->save().ok(), "first save");
    return path;
}

/// A text that differs in each run and always has the same length.
std::string version(int run)
{
    return "V8R8." + std::to_string(100000 + run) + ".0.SP1";
}

class Ours
{
public:
    explicit Ours(const std::string& path) : m_context(openStore(makeStore(path)))
    {
        const auto objects = m_context->fetchAll(Corvel::entityName);
        for (const auto& object : objects.value()) {
            m_corvels.push_back(std::static_pointer_cast<Corvel>(object));
        }
        check(m_corvels.size() == consoles, "fetch");
    }

    void operator()()
    {
        const std::string text = version(++m_run);
        for (const CorvelRef& corvel : m_corvels) {
            corvel->setVersion(text);
            check(m_context->save().ok(), "save");
        }
    }

private:
    std::unique_ptr<ObjectContext> m_context;
    std::vector<CorvelRef> m_corvels;
    int m_run = 0;
};

class PlainStatements
{
public:
    explicit PlainStatements(const std::string& path)
    {
        check(sqlite3_open_v2(makeStore(path).c_str(), &m_database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                              nullptr) == SQLITE_OK,
              "open plainly");
        check(sqlite3_exec(m_database,
                           "PRAGMA trusted_schema=OFF; PRAGMA cell_size_check=ON; PRAGMA journal_mode=WAL;"
                           "PRAGMA synchronous=FULL; PRAGMA secure_delete=ON; PRAGMA temp_store=MEMORY;"
                           "PRAGMA foreign_keys=ON",
                           nullptr, nullptr, nullptr) == SQLITE_OK,
              "settings");
        m_begin = prepare("BEGIN IMMEDIATE");
        m_update = prepare(R"(UPDATE "Corvel" SET "version" = ? WHERE "_id" = ?)");
        m_commit = prepare("COMMIT");
    }
    ~PlainStatements()
    {
        for (sqlite3_stmt* const statement : {m_begin, m_update, m_commit}) {
            sqlite3_finalize(statement);
        }
        sqlite3_close(m_database);
    }
    PlainStatements(const PlainStatements&) = delete;
    PlainStatements& operator=(const PlainStatements&) = delete;

    void operator()()
    {
        const std::string text = version(++m_run);
        for (int i = 1; i <= consoles; ++i) {
            run(m_begin);
            sqlite3_bind_text(m_update, 1, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
            sqlite3_bind_int(m_update, 2, i);
            run(m_update);
            check(sqlite3_changes(m_database) == 1, "update");
            run(m_commit);
        }
    }

private:
    sqlite3_stmt* prepare(const char* sql)
    {
        sqlite3_stmt* statement = nullptr;
        check(sqlite3_prepare_v2(m_database, sql, -1, &statement, nullptr) == SQLITE_OK, sql);
        return statement;
    }
    static void run(sqlite3_stmt* statement)
    {
        check(sqlite3_step(statement) == SQLITE_DONE, "step");
        sqlite3_reset(statement);
    }

    sqlite3* m_database = nullptr;
    sqlite3_stmt* m_begin = nullptr;
    sqlite3_stmt* m_update = nullptr;
    sqlite3_stmt* m_commit = nullptr;
    int m_run = 0;
};

template <typename Store>
void saveEach(benchmark::State& state)
{
    const ScratchFolder folder;
    Store store(folder.file("Store.sqlite"));
    for ([[maybe_unused]] auto _ : state) {
        store();
    }
    state.SetItemsProcessed(state.iterations() * consoles);
}

BENCHMARK(saveEach<Ours>)->Name("save after each of 5,000")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(saveEach<PlainStatements>)->Name("plain statements")->Unit(benchmark::kMillisecond)->UseRealTime();

void measureRows(bench::Rows& rows)
{
    const ScratchFolder folder;
    Ours ours(folder.file("Ours.sqlite"));
    PlainStatements reference(folder.file("Reference.sqlite"));
    const auto medians = bench::medianInterleaved(ours, reference, 31);
    rows.add("save after each of 5,000 consoles / plain statements, same settings", medians.ours / consoles,
             medians.reference / consoles, 1.3);
}

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    return lodestar::bench::run(argc, argv, lodestar::measureRows);
}
