// SPDX-License-Identifier: GPL-2.0-or-later
// What the fuzz targets share: the condition that must hold, reading an input piece by piece, a folder to work in.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

// Ends the program, so that the fuzzer keeps the input.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

inline std::string_view textOf(const uint8_t *data, size_t size)
{
    return {reinterpret_cast<const char *>(data), size};
}

// The byte as a number from -128 to 127.
constexpr int signedNumber(uint8_t byte)
{
    return byte < 0x80 ? byte : byte - 0x100;
}

// Reads the input piece by piece. Returns zeros and empty texts after its end.
class Input
{
public:
    Input(const uint8_t *data, size_t size) : m_data(data), m_left(size) {}

    bool atEnd() const { return m_left == 0; }
    uint8_t byte()
    {
        if (m_left == 0)
            return 0;
        --m_left;
        return *m_data++;
    }
    std::string_view text(size_t count)
    {
        count = std::min(count, m_left);
        const std::string_view taken = textOf(m_data, count);
        m_data += count;
        m_left -= count;
        return taken;
    }
    std::string_view rest() { return text(m_left); }
    // Up to the next line end, which is taken as well.
    std::string_view line()
    {
        const std::string_view all = textOf(m_data, m_left);
        const size_t end = std::min(all.find('\n'), m_left);
        const std::string_view taken = text(end);
        text(1);
        return taken;
    }

private:
    const uint8_t *m_data;
    size_t m_left;
};

inline std::vector<std::string_view> split(std::string_view text, char mark)
{
    std::vector<std::string_view> parts;
    for (;;) {
        const size_t end = text.find(mark);
        parts.push_back(text.substr(0, end));
        if (end == text.npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

inline std::string contentsOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void writeFile(const std::filesystem::path &path, std::string_view text)
{
    std::ofstream(path, std::ios::binary).write(text.data(), static_cast<std::streamsize>(text.size()));
}

// A folder in memory where there is one, removed at the end. It is the root of all logical paths, and the home.
class Scratch
{
public:
    Scratch()
    {
        std::string pattern = std::filesystem::exists("/dev/shm") ? "/dev/shm/bvfuzz.XXXXXX" : "/tmp/bvfuzz.XXXXXX";
        require(mkdtemp(pattern.data()) != nullptr);
        m_folder = pattern;
        for (const char *name : {"BVCO_ROOT", "HOME", "SNMPCONFPATH", "XDG_STATE_HOME", "CUPS_SERVERROOT"})
            setenv(name, pattern.c_str(), 1);
        // Whatever is said goes where nobody waits for it.
        setenv("BVCO_LOG", "stderr", 1);
    }
    Scratch(const Scratch &) = delete;
    Scratch &operator=(const Scratch &) = delete;
    ~Scratch()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

    const std::filesystem::path &folder() const { return m_folder; }

private:
    std::filesystem::path m_folder;
};

} // namespace fuzz
