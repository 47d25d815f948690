#include "support/sample_puzzles.h"
#include "ui/drawing/board_surface.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>

namespace {

using namespace tessaly;

/// A surface of the width and height that the benchmark is given, with the board drawn on it.
BoardSurface drawnSurface(const benchmark::State& state, const Board& board) {
    BoardSurface surface;
    surface.setSize({static_cast<int>(state.range(0)), static_cast<int>(state.range(1))});
    surface.DrawBoard(board);
    return surface;
}

/// The measure: how fast this machine fills a picture of that size with one colour.
void plainFill(benchmark::State& state) {
    QImage picture(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)),
                   QImage::Format_RGB32);
    for (auto _ : state) {
        picture.fill(Qt::white);
        benchmark::DoNotOptimize(picture.constBits());
    }
}

void oneHexagon(benchmark::State& state) {
    const Board board = sampleBoardInPlay();
    BoardSurface surface = drawnSurface(state, board);
    int hexagon = 0;
    for (auto _ : state) {
        hexagon = hexagon % HexagonCount + 1;
        benchmark::DoNotOptimize(surface.DrawHexagon(board, hexagon));
    }
}

void sixMarksInEachCell(benchmark::State& state) {
    Board board;
    for (CellId cell : AllCells)
        board.CellNum[cell] = "123456";
    BoardSurface surface = drawnSurface(state, board);
    for (auto _ : state)
        benchmark::DoNotOptimize(surface.DrawHexagon(board, 10));
}

void wholeBoard(benchmark::State& state) {
    const Board board = sampleBoardInPlay();
    BoardSurface surface = drawnSurface(state, board);
    for (auto _ : state) {
        surface.DrawBoard(board);
        benchmark::DoNotOptimize(surface.image().constBits());
    }
}

void solution(benchmark::State& state) {
    const Board board = sampleBoardInPlay();
    BoardSurface surface = drawnSurface(state, board);
    for (auto _ : state) {
        surface.DrawSolution(board, RGB(0, 128, 0));
        benchmark::DoNotOptimize(surface.image().constBits());
    }
}

/// What a new size costs: the empty hexagons and the digits are made anew.
void firstDrawing(benchmark::State& state) {
    const Board board = sampleBoardInPlay();
    BoardSurface surface = drawnSurface(state, board);
    const QSize size = surface.image().size();
    for (auto _ : state) {
        surface.setSize(size);
        surface.DrawBoard(board);
        benchmark::DoNotOptimize(surface.image().constBits());
    }
}

void atBothSizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Args({500, 480})->Args({2000, 1920})->Unit(benchmark::kMicrosecond);
}

BENCHMARK(plainFill)->Apply(atBothSizes);
BENCHMARK(oneHexagon)->Apply(atBothSizes);
BENCHMARK(sixMarksInEachCell)->Apply(atBothSizes);
BENCHMARK(wholeBoard)->Apply(atBothSizes);
BENCHMARK(solution)->Apply(atBothSizes);
BENCHMARK(firstDrawing)->Apply(atBothSizes);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
