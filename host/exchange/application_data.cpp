#include "application_data.h"

namespace dxf {
namespace {

constexpr short kApplicationName = 1001;

} // namespace

ApplicationData::ApplicationData(const ResbufChain& chain, std::wstring_view application)
    : m_record(chain.get())
{
    const auto begins = [application](const resbuf& record) {
        const wchar_t* name = record.resval.rstring;
        return record.restype == kApplicationName && KdNameEqual()(name ? name : L"", application);
    };
    while (m_record && !begins(*m_record))
        m_record = m_record->rbnext;
    step();
}

void ApplicationData::step()
{
    if (!m_record)
        return;
    m_record = m_record->rbnext;
    if (m_record && m_record->restype == kApplicationName)
        m_record = nullptr;
}

const resbuf* ApplicationData::take(short code)
{
    while (m_record && m_record->restype != code)
        step();
    const resbuf* found = m_record;
    step();
    return found;
}

} // namespace dxf
