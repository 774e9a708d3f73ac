#include "code_pages.h"

#include <string>

#include <iconv.h>

namespace dxf {
namespace {

struct CodePageRow
{
    std::string_view drawingName; ///< lower case
    const char* encoding;         ///< as iconv calls it
    bool hasPairs = false;
};

constexpr CodePageRow kCodePages[] = {
    {"ansi_1252", "CP1252"},
    {"ansi_1250", "CP1250"},
    {"ansi_1251", "CP1251"},
    {"ansi_1253", "CP1253"},
    {"ansi_1254", "CP1254"},
    {"ansi_1255", "CP1255"},
    {"ansi_1256", "CP1256"},
    {"ansi_1257", "CP1257"},
    {"ansi_1258", "CP1258"},
    {"ansi_874", "CP874"},
    {"ansi_932", "CP932", true},
    {"ansi_936", "GBK", true},
    {"ansi_949", "CP949", true},
    {"ansi_950", "CP950", true},
    {"ansi_1361", "JOHAB", true},
    {"johab", "JOHAB", true},
    {"gb2312", "GBK", true},
    {"big5", "CP950", true},
    {"ksc5601", "CP949", true},
    {"dos932", "CP932", true},
    {"dos437", "CP437"},
    {"dos850", "CP850"},
    {"dos852", "CP852"},
    {"dos855", "CP855"},
    {"dos857", "CP857"},
    {"dos860", "CP860"},
    {"dos861", "CP861"},
    {"dos863", "CP863"},
    {"dos864", "CP864"},
    {"dos865", "CP865"},
    {"dos866", "CP866"},
    {"dos869", "CP869"},
    {"iso8859_1", "ISO-8859-1"},
    {"iso8859_2", "ISO-8859-2"},
    {"iso8859_3", "ISO-8859-3"},
    {"iso8859_4", "ISO-8859-4"},
    {"iso8859_5", "ISO-8859-5"},
    {"iso8859_6", "ISO-8859-6"},
    {"iso8859_7", "ISO-8859-7"},
    {"iso8859_8", "ISO-8859-8"},
    {"iso8859_9", "ISO-8859-9"},
    {"mac-roman", "MACINTOSH"},
    // Bytes above 127 have no meaning in ASCII; those who write them mean the usual page.
    {"ascii", "CP1252"},
};

constexpr std::string_view kEscapePages[] = {"ansi_932", "ansi_950", "ansi_949", "johab",
                                             "ansi_936"};

std::string lowered(std::string_view text)
{
    std::string result(text);
    for (char& c : result)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return result;
}

} // namespace

class CodePage::Converter
{
  public:
    explicit Converter(const char* encoding) : m_handle(iconv_open("UTF-32LE", encoding)) {}
    ~Converter()
    {
        if (isOpen())
            iconv_close(m_handle);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    /// The one character that all of `bytes` name, or `kReplacement`.
    wchar_t convert(std::string_view bytes) const
    {
        if (!isOpen())
            return kReplacement;
        char* in = const_cast<char*>(bytes.data());
        std::size_t inLeft = bytes.size();
        wchar_t out = 0;
        char* to = reinterpret_cast<char*>(&out);
        std::size_t outLeft = sizeof out;
        iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
        const std::size_t status = iconv(m_handle, &in, &inLeft, &to, &outLeft);
        // Some encodings hold a character back until they know that no accent follows.
        if (status != static_cast<std::size_t>(-1) && outLeft > 0)
            iconv(m_handle, nullptr, nullptr, &to, &outLeft);
        return status == static_cast<std::size_t>(-1) || outLeft > 0 ? kReplacement : out;
    }

  private:
    bool isOpen() const { return m_handle != reinterpret_cast<iconv_t>(-1); }

    iconv_t m_handle;
};

CodePage::CodePage(const char* encoding, bool hasPairs)
    : m_converter(std::make_shared<Converter>(encoding)), m_hasPairs(hasPairs)
{
    for (unsigned byte = 0; byte < m_singles.size(); ++byte) {
        const char bytes[] = {static_cast<char>(byte)};
        m_singles[byte] =
            byte < 0x80 ? static_cast<wchar_t>(byte) : m_converter->convert({bytes, 1});
    }
    if (!hasPairs)
        m_converter.reset();
}

std::unique_ptr<CodePage> CodePage::find(std::string_view drawingName)
{
    const std::string name = lowered(drawingName);
    for (const CodePageRow& row : kCodePages) {
        if (row.drawingName == name)
            return std::unique_ptr<CodePage>(new CodePage(row.encoding, row.hasPairs));
    }
    return nullptr;
}

std::unique_ptr<CodePage> CodePage::ofEscape(int number)
{
    const bool known = number >= 1 && number <= static_cast<int>(std::size(kEscapePages));
    return known ? find(kEscapePages[number - 1]) : nullptr;
}

wchar_t CodePage::pair(unsigned char lead, unsigned char trail) const
{
    if (!m_hasPairs)
        return kReplacement;
    if (m_pairs.empty())
        m_pairs.resize(65536);
    char16_t& known = m_pairs[lead * 256u + trail];
    if (known == 0) {
        const char bytes[] = {static_cast<char>(lead), static_cast<char>(trail)};
        const wchar_t converted = m_converter->convert({bytes, 2});
        known = static_cast<char16_t>(converted <= 0xFFFF ? converted : kReplacement);
    }
    return static_cast<wchar_t>(known);
}

void CodePage::decode(std::string_view bytes, std::wstring& text) const
{
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        if (m_hasPairs && byte >= 0x80 && i + 1 < bytes.size()) {
            const wchar_t both = pair(byte, static_cast<unsigned char>(bytes[i + 1]));
            if (both != kReplacement) {
                text.push_back(both);
                ++i;
                continue;
            }
        }
        text.push_back(m_singles[byte]);
    }
}

} // namespace dxf
