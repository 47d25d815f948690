#pragma once

#include <functional>
#include <string_view>

namespace tessaly {

/// Stands between this thread and the system's calls on files while it lives. Only programs that
/// are linked with `file_calls.cpp` and the options in `tests/CMakeLists.txt` can have one.
class FileCalls {
public:
    /// Is told each call before it is made, by its name and its number, counted from 0. It may
    /// change files, as another program would at that moment, unseen by itself. The answer is the
    /// error that the call fails with instead of being made, `Skipped`, or 0.
    using Before = std::function<int(std::string_view name, int number)>;

    /// The call is not made and answers 0.
    static constexpr int Skipped = -1;

    explicit FileCalls(Before before);
    FileCalls(const FileCalls&) = delete;
    FileCalls& operator=(const FileCalls&) = delete;
    ~FileCalls();

    /// What is asked before each call of this thread: what `Before` answers, or 0.
    static int errorOf(std::string_view name);

private:
    Before m_before;
    int m_count = 0;
};

/// Fails the calls of one name from the `first` one on, `times` times.
FileCalls::Before failing(std::string_view name, int error, int first = 0, int times = 1);

/// Does something once, before the `first` call of that name.
FileCalls::Before meanwhile(std::string_view name, const std::function<void()>& work,
                            int first = 0);

} // namespace tessaly
