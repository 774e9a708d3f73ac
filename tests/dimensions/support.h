/// What the tests of dimensions share.
#pragma once

#include <array>
#include <string>
#include <vector>

#include <database/associativity.h>
#include <dimensions/dimension_providers.h>
#include <entities/all.h>

#include "../providers/support.h"

namespace dimension_test {

using provider_test::Answer;
using provider_test::Listing;
using Words = std::vector<std::string>;

/// One kind of dimension.
struct Kind
{
    DimensionKind number;
    const char* name; ///< also that of its list
    bool stopsOnCompleteList;
};
extern const std::array<Kind, kDimensionKinds> kKinds;
const Kind& kindOf(DimensionKind number);

/// One line of a list that stands beside the tests.
struct ExpectedKey
{
    int id;
    bool readOnly;
    std::wstring key;
};
std::vector<ExpectedKey> readList(const std::string& name);
/// True if the kind lists the key, or every kind does.
bool isListed(DimensionKind kind, const std::wstring& key);

/// A drawing with a dimension of each kind in the style "Test". Blocks, a linetype and a text style
/// serve as values.
class DimensionTest : public provider_test::ProviderTest
{
  protected:
    DimensionTest();

    KdDbDimension& dimension(DimensionKind kind) { return *m_dimensions[index(kind)]; }
    KdDbEntityPE& provider(DimensionKind kind) { return *m_providers[index(kind)]; }

    /// Sets a variable apart from the style, on all dimensions.
    void set(KdDbDimVar variable, const KdDbDimValue& value);
    void set(KdDbDimVar variable, int value) { set(variable, KdDbDimValue(std::int32_t{value})); }
    void set(KdDbDimVar variable, double value) { set(variable, KdDbDimValue(value)); }
    /// In the style.
    void setInStyle(KdDbDimVar variable, const KdDbDimValue& value);
    /// Takes the style away, for as long as the test runs.
    void eraseStyle();

    /// Makes the dimension a constraint on a variable "d1", dynamic by its layer.
    KdDbAssocVariable* constrain(KdDbDimension& dimension, bool dynamic);

    Answer answer(DimensionKind kind, const wchar_t* key, bool asDisplayText = false,
                  bool withChoices = false);
    /// The same from a dimension of any kind that the base answers for.
    Answer answerOfAll(const wchar_t* key, bool asDisplayText = false, bool withChoices = false)
    {
        return answer(DimensionKind::Aligned, key, asDisplayText, withChoices);
    }
    Listing listing(DimensionKind kind);
    /// Each kind that lists the key must answer it so.
    void expectOfAll(const wchar_t* key, const Words& expected, bool asDisplayText = false,
                     bool withChoices = false);

    template <class Host, class Change>
    void changeAs(DimensionKind kind, Change apply)
    {
        change(static_cast<Host*>(&dimension(kind)), apply);
    }

    KdDbObjectId block(const wchar_t* name)
    {
        return drawing.findOrAddRecord<KdDbBlockTable>(name);
    }

    KdDbObjectId style;

  private:
    static std::size_t index(DimensionKind kind) { return static_cast<std::size_t>(kind); }
    template <class Object>
    Object* addObject(KdDbObjectId owner);

    std::array<KdDbDimension*, kDimensionKinds> m_dimensions;
    std::array<std::unique_ptr<KdDbEntityPE>, kDimensionKinds> m_providers;
};

} // namespace dimension_test
