#include "many_drawings.h"

#include "progress_line.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <deque>
#include <iostream>
#include <optional>

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Json = nlohmann::ordered_json;

// What a child tells its parent, a JSON value a line: an array of cells for each row, and an object
// with the result at the end.

std::string lineOf(const Row& cells)
{
    Json row = Json::array();
    for (const Cell& cell : cells)
        row.push_back({cell.text, cell.json});
    return row.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

Row rowOf(const Json& line)
{
    Row cells;
    for (const Json& cell : line)
        cells.push_back({cell[0].get<std::string>(), cell[1]});
    return cells;
}

bool writeAll(int file, const std::string& text)
{
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t count = write(file, text.data() + done, text.size() - done);
        if (count < 0 && errno != EINTR)
            return false;
        done += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    return true;
}

/// The child's life.
[[noreturn]] void searchAndTell(const Plan& plan, const std::string& drawing, int file)
{
    ProgressLine::silence();
    std::string pending;
    const auto send = [&](bool always) {
        constexpr std::size_t kEnough = 1 << 16;
        if (pending.size() < kEnough && !always)
            return;
        if (!writeAll(file, pending))
            _exit(kCannotWork); // nobody listens any more
        pending.clear();
    };
    SearchResult result{kCannotWork, {}};
    try {
        result = searchDrawing(plan, drawing, [&](const Row& cells) {
            pending += lineOf(cells);
            send(false);
        });
    } catch (const std::exception& problem) {
        std::cerr << "kwselect: " << drawing << ": " << problem.what() << '\n';
    }
    const Json end{{"status", result.status}, {"missing", result.missing}};
    pending += end.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
    send(true);
    std::cerr.flush();
    _exit(0);
}

/// One drawing on its way.
struct Child
{
    pid_t process = -1;
    int file = -1; ///< -1: it has ended
    std::string drawing;
    std::string output;
    std::optional<SearchResult> result;
};

class Children
{
  public:
    Children(const Plan& plan, const RowSink& sink) : m_plan(plan), m_sink(sink) {}
    ~Children()
    {
        for (Child& child : m_children) {
            if (child.file >= 0)
                end(child);
        }
    }
    Children(const Children&) = delete;
    Children& operator=(const Children&) = delete;

    ManyResult run()
    {
        while (m_next < m_plan.drawings.size() || !m_children.empty()) {
            while (m_next < m_plan.drawings.size() && running() < m_plan.options.jobs)
                start(m_plan.drawings[m_next++]);
            listen();
            takeFinished();
        }
        if (m_missingIn < m_result.read || m_result.read == 0)
            m_result.missing.clear();
        return std::move(m_result);
    }

  private:
    std::size_t running() const
    {
        return static_cast<std::size_t>(
            std::count_if(m_children.begin(), m_children.end(),
                          [](const Child& child) { return child.file >= 0; }));
    }

    void start(const std::string& drawing)
    {
        Child& child = m_children.emplace_back();
        child.drawing = drawing;
        int ends[2];
        if (pipe(ends) != 0)
            return failToStart(child);
        std::cout.flush();
        child.process = fork();
        if (child.process == 0) {
            close(ends[0]);
            searchAndTell(m_plan, drawing, ends[1]);
        }
        close(ends[1]);
        child.file = ends[0];
        if (child.process < 0) {
            close(ends[0]);
            child.file = -1;
            failToStart(child);
        }
    }

    void failToStart(Child& child)
    {
        std::cerr << "kwselect: " << child.drawing << ": " << std::strerror(errno) << '\n';
        child.result = SearchResult{kCannotWork, {}};
    }

    /// Takes what the children have written, waiting until one has.
    void listen()
    {
        std::vector<pollfd> files;
        std::vector<Child*> children;
        for (Child& child : m_children) {
            if (child.file < 0)
                continue;
            files.push_back({child.file, POLLIN, 0});
            children.push_back(&child);
        }
        if (files.empty() || poll(files.data(), files.size(), -1) < 0)
            return;
        for (std::size_t i = 0; i < files.size(); ++i) {
            if (files[i].revents != 0)
                receive(*children[i]);
        }
    }

    void receive(Child& child)
    {
        char buffer[1 << 16];
        const ssize_t count = read(child.file, buffer, sizeof buffer);
        if (count > 0)
            child.output.append(buffer, static_cast<std::size_t>(count));
        else if (count == 0 || errno != EINTR)
            end(child);
    }

    void end(Child& child)
    {
        close(child.file);
        child.file = -1;
        int how = 0;
        while (waitpid(child.process, &how, 0) < 0 && errno == EINTR) {
        }
        if (WIFSIGNALED(how)) {
            std::cerr << "kwselect: " << child.drawing << ": the search ended by the signal "
                      << WTERMSIG(how) << " (" << strsignal(WTERMSIG(how)) << ")\n";
            child.result = SearchResult{kCannotWork, {}};
        }
    }

    /// Hands over what the first drawing has told so far, and goes on to the next where it has
    /// ended.
    void takeFinished()
    {
        while (!m_children.empty()) {
            Child& child = m_children.front();
            handOver(child);
            if (child.file >= 0)
                return;
            count(child.result.value_or(SearchResult{kCannotWork, {}}));
            m_children.pop_front();
        }
    }

    void handOver(Child& child)
    {
        std::size_t begin = 0;
        for (std::size_t end = 0; (end = child.output.find('\n', begin)) != std::string::npos;
             begin = end + 1) {
            const Json line = Json::parse(child.output.substr(begin, end - begin));
            if (line.is_array())
                m_sink(rowOf(line));
            else if (!child.result)
                child.result = SearchResult{line["status"].get<ExitStatus>(),
                                            line["missing"].get<std::string>()};
        }
        child.output.erase(0, begin);
    }

    void count(const SearchResult& result)
    {
        m_progress.show(std::to_string(m_result.read + m_result.failed + 1) + " of " +
                        std::to_string(m_plan.drawings.size()) + " drawings");
        ++(result.status == kCannotWork ? m_result.failed : m_result.read);
        if (!result.missing.empty() && m_missingIn++ == 0)
            m_result.missing = result.missing;
        constexpr ExitStatus kByGravity[] = {kInterrupted, kCannotWork, kReadInPart, kSelected,
                                             kNothingSelected};
        m_result.status = graver(kByGravity, m_result.status, result.status);
    }

    const Plan& m_plan;
    const RowSink& m_sink;
    std::deque<Child> m_children; ///< in the order of the drawings
    std::size_t m_next = 0;
    ProgressLine m_progress;
    std::size_t m_missingIn = 0;
    ManyResult m_result;
};

} // namespace

ManyResult searchDrawings(const Plan& plan, const RowSink& sink)
{
    return Children(plan, sink).run();
}
