#include "core/session/multiple_creation.h"

#include "core/board/puzzle_record.h"
#include "core/solver/generator.h"

#include <future>

namespace tessaly {
namespace {

using Clock = std::chrono::steady_clock;

/// How much work a crash can lose. Flushing the disk takes as long as making many puzzles.
constexpr std::chrono::milliseconds WorkAtRisk{100};

/// One in a hundred more hard ones than easy ones, unlike a single creation.
Difficulty drawForEach(DifficultyChoice choice, Chance& chance) {
    constexpr std::uint32_t LastOfHard = 50;
    if (choice)
        return *choice;
    return chance.below(100) > LastOfHard ? Difficulty::Easy : Difficulty::Hard;
}

} // namespace

MultipleCreation::MultipleCreation(Session& session, PuzzleFileCommands& files, Display& display,
                                   Prompts& prompts, CreationOrderChoice& orders, Chance chance)
    : m_session(session)
    , m_files(files)
    , m_display(display)
    , m_prompts(prompts)
    , m_orders(orders)
    , m_store({}, [this](const auto&, const auto& attempt) { return waitFor(attempt); })
    , m_fill(arrangementsOf(session.arrangements))
    , m_chance(chance) {}

void MultipleCreation::run() {
    const std::optional<CreationOrder> order = m_orders.choose();
    m_display.yield();
    if (order && m_files.accepts(order->path) && confirmed(*order))
        carryOut(*order);
}

bool MultipleCreation::confirmed(const CreationOrder& order) {
    const std::string question = "Create Multiple Puzzles:\r\nOutput File: " + order.path.native() +
                                 "\r\nDifficulty Level: " + std::string(nameOf(order.difficulty)) +
                                 "\r\nNumber of Puzzles:" + std::to_string(order.count) +
                                 "\r\n\r\nCreating Multiple Puzzle will take time...\r\nProceed?";
    return m_prompts.message(question, "vbinformation+vbyesno") == answer::Yes;
}

void MultipleCreation::carryOut(const CreationOrder& order) {
    int made = 0;
    const Outcome outcome = create(order, made);
    if (!m_stopped)
        report(order, made, outcome);
}

Outcome MultipleCreation::create(const CreationOrder& order, int& made) {
    const WhileSet creating(m_session.busy.creating);
    m_display.beginProgress(order.path);
    Outcome outcome = createAll(order, made);
    m_display.endProgress();
    if (!m_stopped)
        showPuzzleAgain();
    return outcome;
}

Outcome MultipleCreation::createAll(const CreationOrder& order, int& made) {
    const RunClock clock;
    m_known.clear();
    m_stopped = false;
    while (made < order.count && !m_stopped) {
        int madeNow = made;
        const std::string records = createSome(order, madeNow);
        if (Outcome written = append(order.path, records); !written.ok())
            return written;
        made = madeNow;
        m_display.showProgress(clock.progress(made, order.count));
        m_display.yield();
    }
    return Outcome::done();
}

/// Appends to the file on a thread of its own: a disk may take its time.
Outcome MultipleCreation::append(const std::filesystem::path& path, const std::string& records) {
    auto writing = std::async([&] { return m_store.appendPuzzles(path, records); });
    while (writing.wait_for(Turn) == std::future_status::timeout) {
        if (m_waiting)
            m_display.showMessage("Waiting for " + path.filename().native());
        m_display.yield();
    }
    return writing.get();
}

bool MultipleCreation::waitFor(const std::function<bool()>& attempt) {
    patiently([&] {
        m_waiting = !attempt();
        return m_stopped || !m_waiting;
    });
    return !m_waiting.exchange(false);
}

std::string MultipleCreation::createSome(const CreationOrder& order, int& made) {
    std::string records;
    auto now = Clock::now();
    const auto end = now + WorkAtRisk;
    auto nextTurn = now + Turn;
    for (; now < end && made < order.count && !m_stopped; now = Clock::now()) {
        ++made;
        records += createOne(order, made) + "\r\n";
        if (Clock::now() >= nextTurn) {
            m_display.yield();
            nextTurn = Clock::now() + Turn;
        }
    }
    return records;
}

std::string MultipleCreation::createOne(const CreationOrder& order, int number) {
    Board board;
    for (;;) {
        const Difficulty difficulty = drawForEach(order.difficulty, m_chance);
        m_display.showMessage("Creating " + std::string(nameOf(difficulty)) + " Puzzle " +
                              std::to_string(number) + " of " + std::to_string(order.count));
        CreatePuzzle(board, difficulty, m_chance, m_fill);
        std::string record = PuzzleRecord(board);
        if (m_known.insert(record).second)
            return record;
    }
}

/// Reads the puzzle in play again, for its file may have grown, and keeps what the player entered.
void MultipleCreation::showPuzzleAgain() {
    const CurrentPuzzle before = m_session.puzzle;
    if (before.PuzNum == 0) {
        m_display.showPuzzle(before);
        return;
    }
    const Game play = m_session.game;
    if (m_files.ReadPuzzle(before.PuzPath, before.PuzNum).record != before.record)
        return;
    m_session.game = play;
    m_display.DrawBoard();
}

void MultipleCreation::report(const CreationOrder& order, int made, const Outcome& outcome) {
    const std::string count = std::to_string(made);
    m_display.showMessage(count + " Puzles Created");
    if (!outcome.ok())
        m_prompts.message(outcome.problem, style::Critical);
    if (!outcome.ok() && made == 0)
        return;
    m_prompts.message(count + " Puzzles added to file:\r\n" + order.path.native(),
                      "vbinformation+vbok");
}

} // namespace tessaly
