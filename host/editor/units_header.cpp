#include <editor/units.h>

#include <numbers>

namespace {

// The number of a variable never changes, so each name is looked up once.
template <class Value>
Value read(const KdDbHeaderVariables& variables, int index)
{
    return std::get<Value>(variables.value(index));
}

} // namespace

#define KW_HEADER_VARIABLE(Type, accessor, name)                                                   \
    Type KdDbHeaderVar::accessor() const                                                           \
    {                                                                                              \
        static const int index = KdDbHeaderVariables::indexOf(name);                               \
        return read<Type>(*m_variables, index);                                                    \
    }

KW_HEADER_VARIABLE(int, lunits, L"LUNITS")
KW_HEADER_VARIABLE(int, luprec, L"LUPREC")
KW_HEADER_VARIABLE(int, unitmode, L"UNITMODE")
KW_HEADER_VARIABLE(int, aunits, L"AUNITS")
KW_HEADER_VARIABLE(int, auprec, L"AUPREC")
KW_HEADER_VARIABLE(double, angbase, L"ANGBASE")
KW_HEADER_VARIABLE(int, angdir, L"ANGDIR")
KW_HEADER_VARIABLE(int, dimzin, L"DIMZIN")
KW_HEADER_VARIABLE(int, dimaltz, L"DIMALTZ")
KW_HEADER_VARIABLE(int, dimalttz, L"DIMALTTZ")
KW_HEADER_VARIABLE(int, dimtzin, L"DIMTZIN")

#undef KW_HEADER_VARIABLE

double KdadUnitsFormatter::angleToRadian(double degrees)
{
    return degrees * std::numbers::pi / 180.0;
}
