// The places of virtual operations that callers find by number. A pointer to a virtual member
// function holds that number: 1 more than its distance in bytes from the start of the table.
#include <cstring>

#include "support.h"

namespace {

template <class Operation>
std::size_t slotOf(Operation operation)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof words == sizeof operation);
    std::memcpy(words, &operation, sizeof words);
    EXPECT_EQ(words[0] % 2, 1) << "no virtual operation";
    return static_cast<std::size_t>(words[0] - 1) / sizeof(void*);
}

const std::size_t kBehindTheProtocol = slotOf(&KdDbEntityPE::getEntityTotalArea) + 1;

TEST(SlotsOfProviders, HoldTheProtocolInItsOrder)
{
    const std::size_t first = slotOf(&KdDbEntityPE::PropertyCount);
    EXPECT_EQ(slotOf(&KdDbEntityPE::PropertyValueGet), first + 1);
    EXPECT_EQ(slotOf(&KdDbEntityPE::getEntityTotalLength), first + 2);
    EXPECT_EQ(slotOf(&KdDbEntityPE::getEntityTotalArea), first + 3);
}

TEST(SlotsOfActions, HaveTheirOwnKeysBehindTheProtocol)
{
    EXPECT_EQ(slotOf(&KdDbBlockActionEntity_Extension::PropertyCounEx), kBehindTheProtocol);
    EXPECT_EQ(slotOf(&KdDbBlockRotateActionEntity_Extension::PropertyCounEx), kBehindTheProtocol);
}

TEST(SlotsOfActions, AddNothingInTheBase)
{
    KdDbBlockActionEntity_Extension provider;
    KdArray<KdString> names;
    KdArray<bool> flags;
    provider.PropertyCounEx(nullptr, names, flags);
    EXPECT_EQ(names.length(), 0);
    EXPECT_EQ(flags.length(), 0);
}

TEST(SlotsOfConstraints, HaveSixOperationsBehindTheProtocol)
{
    using Provider = KdDbBlockConstraintTagEntity_Extension;
    EXPECT_EQ(slotOf(&Provider::getDistName), kBehindTheProtocol);
    EXPECT_EQ(slotOf(&Provider::getDistDesc), kBehindTheProtocol + 1);
    EXPECT_EQ(slotOf(&Provider::getValSetType), kBehindTheProtocol + 2);
    EXPECT_EQ(slotOf(&Provider::getTextPosition), kBehindTheProtocol + 3);
    EXPECT_EQ(slotOf(&Provider::getBasePosition), kBehindTheProtocol + 4);
    EXPECT_EQ(slotOf(&Provider::getDimlineOffset), kBehindTheProtocol + 5);
}

TEST(SlotsOfConstraints, BelongToOneOfThreeKinds)
{
    EXPECT_EQ(KdDbBlockLinearConstraintTagEntity_Extension().kind(), 1);
    EXPECT_EQ(KdDbBlockAngularConstraintTagEntity_Extension().kind(), 2);
    EXPECT_EQ(KdDbBlockDiametricConstraintTagEntity_Extension().kind(), 0);
    EXPECT_EQ(KdDbBlockRadialConstraintTagEntity_Extension().kind(), 0);
}

} // namespace
