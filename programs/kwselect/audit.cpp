#include "audit.h"

#include <iostream>
#include <memory>

#include <common/handle_text.h>
#include <database/database.h>
#include <nlohmann/json.hpp>
#include <runtime/utf8.h>

#include "drawing.h"
#include "exit_status.h"

namespace {

/// Findings are printed as they are met: of a badly damaged file there may be any number.
class AuditPrinter
{
  public:
    virtual ~AuditPrinter() = default;
    virtual void print(const ReadFinding& finding) = 0;
    virtual void end(const ReadReport& report) = 0;
};

class TextPrinter : public AuditPrinter
{
  public:
    TextPrinter(const std::string& file, bool withFile, const ReadReport& report)
        : m_prefix(withFile ? file + ": " : std::string()), m_report(report)
    {
    }

    void print(const ReadFinding& finding) override
    {
        std::cout << m_prefix << (m_report.binary ? "byte " : "line ") << finding.line << ": ";
        if (finding.handle != 0)
            std::cout << "handle " << handleText(finding.handle) << ": ";
        std::cout << kdToUtf8(finding.sentence) << " [" << finding.number << "]\n";
    }
    void end(const ReadReport& report) override
    {
        std::cout.flush();
        std::cerr << m_prefix << report.totalFindings << " finding(s).\n";
    }

  private:
    std::string m_prefix;
    const ReadReport& m_report;
};

/// One object with a list of findings, a line each.
class JsonPrinter : public AuditPrinter
{
  public:
    JsonPrinter(const std::string& file, const ReadReport& report) : m_file(file), m_report(report)
    {
    }

    void print(const ReadFinding& finding) override
    {
        begin();
        Json json;
        json["number"] = finding.number;
        json["sentence"] = kdToUtf8(finding.sentence);
        json[m_report.binary ? "byte" : "line"] = finding.line;
        json["handle"] = finding.handle != 0 ? Json(handleText(finding.handle)) : Json();
        std::cout << (m_isFirst ? "\n" : ",\n") << text(json);
        m_isFirst = false;
    }
    void end(const ReadReport& report) override
    {
        begin();
        std::cout << (m_isFirst ? "" : "\n") << "],\"version\":" << text(kdToUtf8(report.version))
                  << ",\"binary\":" << text(report.binary) << ",\"entities\":" << report.entities
                  << ",\"complete\":" << text(report.complete) << "}\n";
    }

  private:
    using Json = nlohmann::ordered_json;

    static std::string text(const Json& json)
    {
        return json.dump(-1, ' ', false, Json::error_handler_t::replace);
    }
    void begin()
    {
        if (!m_hasBegun)
            std::cout << "{\"file\":" << text(m_file) << ",\"findings\":[";
        m_hasBegun = true;
    }

    const std::string& m_file;
    const ReadReport& m_report;
    bool m_hasBegun = false;
    bool m_isFirst = true;
};

ExitStatus auditDrawing(const std::string& file, const Plan& plan)
{
    ReadReport report;
    std::unique_ptr<AuditPrinter> printer;
    if (plan.options.format)
        printer = std::make_unique<JsonPrinter>(file, report);
    else
        printer = std::make_unique<TextPrinter>(file, plan.hasSeveralDrawings(), report);
    ReadOptions reading;
    reading.readAllMembers = true;
    reading.found = [&](const ReadFinding& finding) { printer->print(finding); };
    std::unique_ptr<KdDbDatabase> database;
    const ExitStatus status = readOrTell(file, database, report, reading);
    if (status != kSelected)
        return status;
    printer->end(report);
    if (!report.complete)
        return kReadInPart;
    return report.totalFindings > 0 ? kHasFindings : kSelected;
}

} // namespace

ExitStatus auditDrawings(const Plan& plan)
{
    constexpr ExitStatus kByGravity[] = {kInterrupted, kCannotWork, kReadInPart, kHasFindings,
                                         kSelected};
    ExitStatus worst = kSelected;
    for (const std::string& file : plan.drawings) {
        const ExitStatus status = auditDrawing(file, plan);
        worst = graver(kByGravity, worst, status);
        if (status == kInterrupted)
            break;
    }
    return worst;
}
