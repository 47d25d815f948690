#include "cli/console.h"

#include "core/files/file_descriptor.h"

#include "support/file_calls.h"
#include "support/full_disk.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <ostream>
#include <string>

namespace tessaly {
namespace {

using test::contentOf;
using test::put;

class StandardOutputTest : public testing::Test {
protected:
    std::filesystem::path path() const { return m_folder / "out.txt"; }
    FileDescriptor open(int more = 0) const {
        return FileDescriptor(::open(path().c_str(), O_WRONLY | O_CREAT | more, 0666));
    }
    /// Writes on a disk where no file can be larger than `room` bytes. Whether that went well.
    static bool writeTo(const FileDescriptor& file, const std::string& text, rlim_t room) {
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

private:
    test::TemporaryFolder m_folder;
};

TEST_F(StandardOutputTest, WhatFitsIsWrittenWholeHoweverLongALineIs) {
    const std::string text = "short\n" + std::string(200'000, 'x') + "\nno end";
    const FileDescriptor file = open();
    EXPECT_TRUE(writeTo(file, text, RLIM_INFINITY));
    EXPECT_TRUE(contentOf(path()) == text + "later\n");
}

TEST_F(StandardOutputTest, APartOfALineIsTakenBackFromAFullDisk) {
    const std::string line = std::string(99, 'x') + "\n";
    const std::string longLine(200'000, 'y');
    struct Case {
        std::string before, text;
        rlim_t room;
        std::string left;
    };
    for (const Case& each : {Case{"", line + line, 150, line}, Case{line, line, 150, line},
                             Case{"", line + line, 100, line}, Case{"", line, 0, ""},
                             Case{"", line + longLine + "\n", 150'000, line}}) {
        put(path(), each.before);
        EXPECT_FALSE(writeTo(open(O_APPEND), each.text, each.room));
        EXPECT_TRUE(contentOf(path()) == each.left) << each.room;
    }
}

TEST_F(StandardOutputTest, NothingIsTakenBackThatMayBeAnothersOrNoFile) {
    put(path(), std::string(200, 'o'));
    EXPECT_FALSE(writeTo(open(), std::string(99, 'x') + "\n" + std::string(99, 'y'), 150));
    EXPECT_EQ(contentOf(path()),
              std::string(99, 'x') + "\n" + std::string(50, 'y') + std::string(50, 'o'))
        << "written over the start of an older, longer file";
    EXPECT_FALSE(writeTo(FileDescriptor(::open("/dev/full", O_WRONLY)), "x\n", RLIM_INFINITY));
    EXPECT_FALSE(writeTo(FileDescriptor(), "x\n", RLIM_INFINITY)) << "closed";

    put(path(), "");
    const test::FileCalls calls(test::failing("fstat", EIO));
    EXPECT_FALSE(writeTo(open(), "1234\n56", 6));
    EXPECT_EQ(contentOf(path()), "1234\n5");
}

} // namespace
} // namespace tessaly
