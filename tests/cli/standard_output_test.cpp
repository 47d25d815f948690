#include "cli/console.h"

#include "core/files/file_descriptor.h"
#include "support/file_calls.h"
#include "support/full_disk.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <ostream>

namespace tessaly {
namespace {

/// Writes on a disk where no file can be larger than `room` bytes. Whether that went well.
bool writeTo(const FileDescriptor& file, const std::string& text, rlim_t room) {
    const test::FullDisk disk(room);
    StandardOutput buffer(file.get());
    std::ostream out(&buffer);
    out << text << std::flush;
    const bool ok = out.good();
    out.clear();
    out << "later\n" << std::flush;
    EXPECT_EQ(out.good(), ok) << "a gap in the output is worse than its end";
    return ok;
}

TEST(StandardOutput, APartOfALineIsTakenBackWhereTheFileEndsWithIt) {
    const test::TemporaryFolder folder;
    const std::string path = folder / "out.txt";
    const std::string x(99, 'x'), y(200'000, 'y');
    struct Case {
        int more;
        std::string before, text;
        rlim_t room;
        std::string left;
    };
    const auto test = [&path](const Case& each) {
        test::put(path, each.before);
        const FileDescriptor file(::open(path.c_str(), O_WRONLY | each.more));
        EXPECT_EQ(writeTo(file, each.text, each.room), each.room == RLIM_INFINITY);
        EXPECT_TRUE(test::contentOf(path) == each.left) << each.room;
    };
    test({0, "", x + "\n" + y + "\nopen", RLIM_INFINITY, x + "\n" + y + "\nopenlater\n"});
    test({O_APPEND, "", x + "\n" + x + "\n", 150, x + "\n"});
    test({O_APPEND, x + "\n", x + "\n", 150, x + "\n"});
    test({O_APPEND, "", x + "\n" + x + "\n", 100, x + "\n"});
    test({O_APPEND, "", x + "\n", 0, ""});
    test({O_APPEND, "", x + "\n" + y + "\n", 150'000, x + "\n"});
    const std::string older(200, 'o');
    test({0, older, x + "\n" + x, 150, x + "\n" + x.substr(0, 50) + older.substr(0, 50)});
    EXPECT_FALSE(writeTo(FileDescriptor(), "x\n", RLIM_INFINITY)) << "closed";
    const test::FileCalls calls(test::failing("fstat", EIO));
    test({O_APPEND, "", "1234\n56", 6, "1234\n5"});
}

} // namespace
} // namespace tessaly
