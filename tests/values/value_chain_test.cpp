// The chain that is handed to a provider and used again for the next entity.
#include <values/value_chain.h>

#include <gtest/gtest.h>

namespace {

/// Two records of which the first holds 2.5.
void fill(ValueChain& chain)
{
    chain.head()->setRestype(ResBuf::kReal);
    chain.head()->setDouble(2.5);
    chain.head()->setNext(ResBuf::newRb(ResBuf::kInt8));
}

TEST(ValueChain, BeginsAsOneEmptyRecord)
{
    ValueChain chain;
    EXPECT_EQ(chain.head()->restype(), ResBuf::kNone);
    EXPECT_EQ(chain.head()->next(), nullptr);
}

TEST(ValueChain, IsOneEmptyRecordAgainOnceItWasReset)
{
    ValueChain chain;
    fill(chain);
    chain.reset();
    EXPECT_EQ(chain.head()->restype(), ResBuf::kNone);
    EXPECT_EQ(chain.head()->next(), nullptr);
}

TEST(ValueChain, IsANeutralValueOfTheSameKindOnceItWasCleared)
{
    ValueChain chain;
    fill(chain);
    chain.clear();
    EXPECT_EQ(chain.head()->restype(), ResBuf::kReal);
    EXPECT_EQ(chain.head()->getDouble(), 0.0);
    EXPECT_EQ(chain.head()->next(), nullptr);
}

TEST(ValueChain, HasARecordAgainWhereAProviderHasFreedAll)
{
    ValueChain chain;
    ResBuf::relRb(chain.head());
    chain.reset();
    ASSERT_NE(chain.head(), nullptr);
    EXPECT_EQ(chain.head()->restype(), ResBuf::kNone);

    ResBuf::relRb(chain.head());
    chain.clear();
    ASSERT_NE(chain.head(), nullptr);
    EXPECT_EQ(chain.head()->restype(), ResBuf::kNone);
}

} // namespace
