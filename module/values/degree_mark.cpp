#include <values/degree_mark.h>

#include <editor/system_variables.h>
#include <runtime/status.h>

namespace {

/// A mark that turns into "d" for good.
class DegreeMark
{
  public:
    const wchar_t* text()
    {
        resbuf variable{};
        if (kdedGetVar(L"USEDEGREESYM", &variable) == RTNORM && variable.resval.rint == 0)
            m_text[0] = L'd';
        return m_text;
    }

  private:
    wchar_t m_text[2] = L"\u00B0";
};

} // namespace

const wchar_t* GetDegreesSymbol()
{
    static DegreeMark mark;
    return mark.text();
}

const wchar_t* KdadGetDegreesSymbol()
{
    static DegreeMark mark;
    return mark.text();
}
