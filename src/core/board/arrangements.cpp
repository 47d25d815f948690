#include "core/board/arrangements.h"

#include "core/files/file_access.h"
#include "core/files/line_reader.h"

#include <algorithm>
#include <set>
#include <utility>

namespace tessaly {
namespace {

constexpr std::size_t CharactersPerWord = 3;
constexpr std::size_t LineLength = CharactersPerWord * ArrangementCount;
constexpr int PairOffset = 25;
constexpr char FirstLetter = 'A';
constexpr std::string_view SortedLetters = "ABCDEF";

char letterOf(int digit) {
    return static_cast<char>(FirstLetter + digit - 1);
}

std::string decodeWord(std::string_view characters) {
    std::string word;
    for (char character : characters) {
        const int pair = static_cast<unsigned char>(character) - PairOffset;
        word += letterOf(pair / 10);
        word += letterOf(pair % 10);
    }
    return word;
}

bool isArrangement(std::string word) {
    std::sort(word.begin(), word.end());
    return word == SortedLetters;
}

std::size_t weightIndex(char letter) {
    return static_cast<std::size_t>(letter - FirstLetter);
}

void addWord(const std::string& word, ArrangementTable& table) {
    table.words[static_cast<std::size_t>(++table.wordCount)] = word;
    for (char letter : word)
        ++table.letterWeights[weightIndex(letter)];
}

void scoreWords(ArrangementTable& table) {
    for (std::size_t i = 1; i <= static_cast<std::size_t>(table.wordCount); ++i)
        for (char letter : table.words[i])
            table.scores[i] += table.letterWeights[weightIndex(letter)];
}

} // namespace

Outcome readArrangements(std::string_view line, ArrangementTable& table) {
    if (line.size() != LineLength)
        return Outcome::failed("the first line has " + std::to_string(line.size()) +
                               " characters instead of " + std::to_string(LineLength));
    ArrangementTable filled;
    std::set<std::string> seen;
    for (std::size_t at = 0; at < line.size(); at += CharactersPerWord) {
        const std::string word = decodeWord(line.substr(at, CharactersPerWord));
        const std::string which =
            "arrangement " + std::to_string(at / CharactersPerWord + 1) + " of the first line ";
        if (!isArrangement(word))
            return Outcome::failed(which + "does not hold each of 1 to 6 once");
        if (!seen.insert(word).second)
            return Outcome::failed(which + "stands there twice");
        addWord(word, filled);
    }
    scoreWords(filled);
    table = std::move(filled);
    return Outcome::done();
}

Outcome Set6Combos(const std::filesystem::path& path, ArrangementTable& table) {
    constexpr std::size_t Limit = 65536;
    std::string content;
    if (Outcome read = readSmallFile(path, Limit, content); !read.ok())
        return read;
    std::string_view rest = withoutMark(content);
    const Outcome read = readArrangements(withoutLineEnd(takeLine(rest)), table);
    return read.ok() ? read : Outcome::failed(path.native() + ": " + read.problem);
}

} // namespace tessaly
