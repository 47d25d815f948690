#include "core/board/puzzle_record.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr std::size_t HeaderLength = 5;
constexpr std::size_t ProgressStart = 120;
constexpr char ProgressMark = ':';
constexpr int GivenOffset = 32;
constexpr std::string_view SolutionCharacters = "0123456QRSTUV";

bool isGivenCharacter(char c) {
    return c >= 'Q';
}

char solutionCharacter(const Board& board, CellId cell) {
    const std::string& solution = board.SolNum[cell];
    const char digit = solution.empty() ? '0' : solution.front();
    return board.FixedCell[cell] ? static_cast<char>(digit + GivenOffset) : digit;
}

std::string header(const Board& board) {
    std::string text(1, entryOf(board.difficulty).letter);
    text += static_cast<char>('0' + board.BlankHex / 10 % 10);
    text += static_cast<char>('0' + board.BlankHex % 10);
    if (board.difficulty == Difficulty::Hard)
        text += std::to_string(board.HintCell % 10) + std::to_string(board.HintNum % 10);
    else
        text += "00";
    return text;
}

std::string progress(const Board& board) {
    std::string numbers;
    for (CellId cell : AllCells) {
        const bool byPlayer = !board.FixedCell[cell] && isPlaced(board.CellNum[cell]);
        numbers += byPlayer ? board.CellNum[cell].front() : ' ';
    }
    if (numbers.find_first_not_of(' ') == std::string::npos)
        return {};
    return ProgressMark + numbers;
}

/// Checks the characters of a record as far as they go.
Outcome checkCharacters(std::string_view line) {
    for (std::size_t i = 1; i < std::min(HeaderLength, line.size()); ++i)
        if (line[i] < '0' || line[i] > '9')
            return Outcome::failed("character " + std::to_string(i + 1) +
                                   " of the header is no digit");
    for (std::size_t i = HeaderLength; i < std::min(RecordLength, line.size()); ++i)
        if (SolutionCharacters.find(line[i]) == std::string_view::npos)
            return Outcome::failed("character " + std::to_string(i + 1) + " is no cell");
    return Outcome::done();
}

Outcome checkRecord(std::string_view line) {
    if (line.size() >= RecordLength)
        return checkCharacters(line);
    return Outcome::failed("the record has " + std::to_string(line.size()) +
                           " characters instead of " + std::to_string(RecordLength));
}

void readHeader(std::string_view line, Board& board) {
    const auto digit = [line](std::size_t i) { return line[i] - '0'; };
    const bool hard = line.front() == entryOf(Difficulty::Hard).letter;
    board.BlankHex = 10 * digit(1) + digit(2);
    board.difficulty = hard ? Difficulty::Hard : Difficulty::Easy;
    board.HintCell = hard ? digit(3) : 0;
    board.HintNum = hard ? digit(4) : 0;
}

void readCells(std::string_view cells, Board& board) {
    for (std::size_t i = 0; i < AllCells.size(); ++i) {
        const CellId cell = AllCells[i];
        const bool given = isGivenCharacter(cells[i]);
        board.FixedCell[cell] = given;
        board.SolNum[cell] =
            std::string(1, given ? static_cast<char>(cells[i] - GivenOffset) : cells[i]);
        board.CellNum[cell] = given ? board.SolNum[cell] : std::string();
    }
}

void readProgress(std::string_view numbers, Board& board) {
    for (std::size_t i = 0; i < std::min(numbers.size(), AllCells.size()); ++i) {
        const bool isNumber = numbers[i] >= '0' && numbers[i] <= '6';
        if (isNumber && !board.FixedCell[AllCells[i]])
            board.CellNum[AllCells[i]] = std::string(1, numbers[i]);
    }
}

} // namespace

std::string PuzzleRecord(const Board& board) {
    std::string record = header(board);
    record.reserve(RecordLengthWithProgress);
    for (CellId cell : AllCells)
        record += solutionCharacter(board, cell);
    return record + progress(board);
}

Outcome readRecord(std::string_view line, Board& board) {
    if (Outcome checked = checkRecord(line); !checked.ok())
        return checked;
    readHeader(line, board);
    board.SkipHex = NoHexagon;
    readCells(line.substr(HeaderLength, AllCells.size()), board);
    const bool hasProgress = line.find(ProgressMark) != std::string_view::npos;
    if (hasProgress && line.size() > ProgressStart)
        readProgress(line.substr(ProgressStart), board);
    return Outcome::done();
}

bool isRecordCutShort(std::string_view line) {
    const auto begins = [line](const DifficultyEntry& each) {
        return line.starts_with(each.letter);
    };
    return line.size() < RecordLength &&
           std::any_of(Difficulties.begin(), Difficulties.end(), begins) &&
           checkCharacters(line).ok();
}

} // namespace tessaly
