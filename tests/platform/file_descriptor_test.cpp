// SPDX-License-Identifier: GPL-2.0-or-later
// Complete reads and writes through descriptors.
#include "platform/FileDescriptor.h"

#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>

namespace {

struct Pipe
{
    Pipe()
    {
        int ends[2] = {};
        if (pipe(ends) == 0) {
            out = bv::FileDescriptor(ends[0]);
            in = bv::FileDescriptor(ends[1]);
        }
    }
    bv::FileDescriptor out, in;
};

} // namespace

TEST(FileDescriptor, MoreThanAPipeHoldsIsAppendedCompletely)
{
    Pipe pipe;
    std::string sent(300000, 'a');
    sent.back() = 'z';
    std::thread writer([&] {
        EXPECT_TRUE(bv::writeAll(pipe.in.get(), sent));
        pipe.in.reset();
    });
    std::string text = "before";
    EXPECT_TRUE(bv::readToEnd(pipe.out.get(), &text));
    writer.join();
    EXPECT_EQ(text, "before" + sent);
    EXPECT_FALSE(bv::readToEnd(-1, &text));
    EXPECT_EQ(text.size(), 6 + sent.size()) << "what came before a failure is kept";
}

TEST(FileDescriptor, AReadEndsOnceTheTextPassesItsLimit)
{
    Pipe pipe; // its writer stays open: a read up to the end would never return
    ASSERT_TRUE(bv::writeAll(pipe.in.get(), "12345"));
    std::string text;
    EXPECT_TRUE(bv::readToEnd(pipe.out.get(), &text, 4));
    EXPECT_GT(text.size(), 4u);
}

TEST(FileDescriptor, ReadsAtAnOffsetCompletelyOrNotAtAll)
{
    std::FILE *file = std::tmpfile();
    ASSERT_TRUE(file);
    ASSERT_TRUE(bv::writeAllAt(fileno(file), 2, "cdef"));
    ASSERT_TRUE(bv::writeAllAt(fileno(file), 0, "ab"));
    EXPECT_EQ(bv::readAt(fileno(file), 1, 5), "bcdef");
    EXPECT_EQ(bv::readAt(fileno(file), 1, 6), std::nullopt);
    std::fclose(file);
}
