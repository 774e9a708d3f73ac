#include "suites.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <fstream>
#include <memory>
#include <string_view>

#include "sample_drawing.h"

namespace {

/// The bytes of a file. The memory is not cleared first, which would cost as much as reading.
class Contents
{
  public:
    explicit Contents(long entities)
        : m_size(static_cast<std::size_t>(sampleBytes(entities))),
          m_bytes(std::make_unique_for_overwrite<char[]>(m_size))
    {
        std::ifstream stream(sampleDrawing(entities), std::ios::binary);
        stream.read(m_bytes.get(), static_cast<std::streamsize>(m_size));
    }
    std::string_view view() const { return {m_bytes.get(), m_size}; }

  private:
    std::size_t m_size;
    std::unique_ptr<char[]> m_bytes;
};

/// Cuts the next line off `rest`; the line keeps its carriage return.
std::string_view takeLine(std::string_view& rest)
{
    const void* const end = std::memchr(rest.data(), '\n', rest.size());
    const std::size_t length =
        end ? static_cast<std::size_t>(static_cast<const char*>(end) - rest.data()) : rest.size();
    const std::string_view line = rest.substr(0, length);
    rest.remove_prefix(std::min(length + 1, rest.size()));
    return line;
}

int groupCode(std::string_view line)
{
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    int code = -1;
    std::from_chars(line.data(), line.data() + line.size(), code);
    return code;
}

std::size_t countLines(std::string_view rest)
{
    std::size_t lines = 0;
    for (; !rest.empty(); ++lines)
        takeLine(rest);
    return lines;
}

std::size_t countRecords(std::string_view rest)
{
    std::size_t records = 0;
    while (!rest.empty()) {
        const int code = groupCode(takeLine(rest));
        const std::string_view value = takeLine(rest);
        benchmark::DoNotOptimize(value);
        records += code == 0;
    }
    return records;
}

void readFile(benchmark::State& state, long entities)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(Contents(entities).view().back());
}

/// A measurement of `pass` over bytes that lie in memory already.
Measurement overBytes(std::size_t (*pass)(std::string_view))
{
    return [pass](benchmark::State& state, long entities) {
        const Contents contents(entities);
        for (auto _ : state)
            benchmark::DoNotOptimize(pass(contents.view()));
    };
}

} // namespace

void registerBaselines(long entities)
{
    registerMeasurement("baseline/read the file", entities, readFile);
    registerMeasurement("baseline/split into lines", entities, overBytes(countLines));
    registerMeasurement("baseline/take groups", entities, overBytes(countRecords));
}
