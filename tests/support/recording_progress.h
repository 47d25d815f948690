#pragma once

#include "core/session/run_progress.h"

#include <filesystem>
#include <functional>

namespace tessaly {

/// What a window would show of a long run.
struct RecordingProgress : RunProgressDisplay {
    void beginProgress(const std::filesystem::path& shown) override { path = shown; }
    void showProgress(const RunProgress& shown) override {
        progress = shown;
        if (onProgress)
            onProgress();
    }
    void endProgress() override { ended = true; }

    std::filesystem::path path;
    RunProgress progress;
    bool ended = false;
    std::function<void()> onProgress;
};

} // namespace tessaly
