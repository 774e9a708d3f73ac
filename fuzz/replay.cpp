// The program around a fuzz target where the compiler brings no fuzzer: runs the target over its
// corpus, and over inputs that are made from the corpus with the same faults in every run.
//
//     <subject>_replay <inputs to make> <dictionary> <file or folder>...
//
// The input that ends the program is left in the current folder as "crash-<program>".
#include <algorithm>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// A finding of a sanitizer then arrives as a signal, and an absurd request for memory is a finding.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "abort_on_error=1:max_allocation_size_mb=2048:hard_rss_limit_mb=2048";
}
extern "C" const char* __ubsan_default_options();
extern "C" const char* __ubsan_default_options()
{
    return "abort_on_error=1:print_stacktrace=1";
}

namespace {

using Random = std::mt19937;
using Inputs = std::vector<std::string>;

const std::string* running = nullptr;
std::string crashFile;

void keepInput(int signal)
{
    std::signal(signal, SIG_DFL);
    const int file = open(crashFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (running && file >= 0 && write(file, running->data(), running->size()) < 0)
        _exit(EXIT_FAILURE);
    std::raise(signal);
}

std::string contentOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The files named, and those in the folders named; sorted, so that all machines agree.
Inputs seedsOf(char** first, char** last)
{
    std::vector<fs::path> files;
    for (; first != last; ++first) {
        if (!fs::is_directory(*first))
            files.emplace_back(*first);
        else
            for (const auto& entry : fs::directory_iterator(*first))
                files.push_back(entry.path());
    }
    std::ranges::sort(files);
    Inputs seeds;
    std::ranges::transform(files, std::back_inserter(seeds), contentOf);
    return seeds;
}

/// The quoted words of a dictionary, one a line; \xHH and \\ and \" stand for a byte.
Inputs wordsOf(const fs::path& dictionary)
{
    Inputs words;
    std::ifstream file(dictionary);
    for (std::string line; std::getline(file, line);) {
        const std::size_t begin = line.find('"');
        if (line.starts_with('#') || begin == std::string::npos)
            continue;
        std::string word;
        for (std::size_t at = begin + 1; at + 1 < line.size(); ++at) {
            if (line[at] != '\\') {
                word += line[at];
            } else if (line[++at] == 'x') {
                word += static_cast<char>(std::stoi(line.substr(at + 1, 2), nullptr, 16));
                at += 2;
            } else {
                word += line[at];
            }
        }
        words.push_back(word);
    }
    return words;
}

/// Puts faults into inputs.
class Mutator
{
  public:
    Mutator(const Inputs& seeds, const Inputs& words) : m_seeds(seeds), m_words(words) {}

    std::string next()
    {
        std::string input = anyOf(m_seeds);
        for (std::size_t faults = 1 + m_random() % 6; faults > 0; --faults)
            change(input);
        constexpr std::size_t kLongest = 64 * 1024;
        return input.substr(0, kLongest);
    }

  private:
    const std::string& anyOf(const Inputs& inputs)
    {
        return inputs[static_cast<std::size_t>(m_random() % inputs.size())];
    }
    std::size_t placeIn(const std::string& text) { return m_random() % (text.size() + 1); }
    std::size_t shortLength() { return std::size_t{1} << m_random() % 8; }
    std::string pieceOf(const std::string& text)
    {
        return text.substr(placeIn(text), shortLength());
    }

    void change(std::string& input)
    {
        const std::size_t at = placeIn(input);
        switch (m_random() % 8) {
        case 0:
            input.erase(at, shortLength());
            break;
        case 1:
            input.insert(at, pieceOf(input));
            break;
        case 2:
            input.insert(at, pieceOf(anyOf(m_seeds)));
            break;
        case 3:
            if (at < input.size())
                input[at] = static_cast<char>(m_random());
            break;
        case 4:
            input.insert(at, 1, static_cast<char>(m_random()));
            break;
        case 5:
            replaceRun(input, at);
            break;
        case 6:
            if (m_random() % 4 == 0)
                input.resize(at);
            break;
        default:
            if (!m_words.empty())
                input.insert(at, anyOf(m_words));
        }
    }

    /// Puts another word, or an odd number, in the place of a word.
    void replaceRun(std::string& input, std::size_t at)
    {
        static const Inputs odd = {"-1", "0", "1e400", "nan", "4294967295", "2147483648", "1e-320"};
        std::size_t end = input.find_first_of(" \n\r\t\"", at);
        end = std::min(end, input.size());
        const bool isWord = !m_words.empty() && m_random() % 2 == 0;
        input.replace(at, end - at, isWord ? anyOf(m_words) : anyOf(odd));
    }

    const Inputs& m_seeds;
    const Inputs& m_words;
    Random m_random{20230517};
};

void run(const std::string& input)
{
    // A copy of just this size, so that a step beyond its end is seen.
    const std::vector<std::uint8_t> exact(input.begin(), input.end());
    running = &input;
    LLVMFuzzerTestOneInput(exact.data(), exact.size());
    running = nullptr;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 4) {
        std::cerr << argv[0] << ": <inputs to make> <dictionary> <file or folder>...\n";
        return EXIT_FAILURE;
    }
    crashFile = "crash-" + fs::path(argv[0]).stem().string();
    for (const int signal : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGTERM})
        std::signal(signal, keepInput);
    const Inputs seeds = seedsOf(argv + 3, argv + argc);
    if (seeds.empty()) {
        std::cerr << "no inputs\n";
        return EXIT_FAILURE;
    }
    std::ranges::for_each(seeds, run);
    const Inputs words = wordsOf(argv[2]);
    Mutator mutator(seeds, words);
    for (long count = std::strtol(argv[1], nullptr, 10); count > 0; --count)
        run(mutator.next());
    return EXIT_SUCCESS;
}
