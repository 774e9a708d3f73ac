#include "support.h"

#include <platform/resources.h>

#include <QCoreApplication>

#include <kwdraw/document/user_language.h>

using namespace kwdraw_test;
using testing::HasSubstr;

namespace {

class Language : public WindowTest
{
  protected:
    ~Language() override { setResourceLanguage(""); }

    static QString open() { return QCoreApplication::translate("Commands", "&Open..."); }
};

TEST_F(Language, IsThatOfTheResources)
{
    EXPECT_EQ(userLanguage(), "en");
    setResourceLanguage("de_AT.UTF-8");
    EXPECT_EQ(userLanguage(), "de");
    setResourceLanguage("fr");
    EXPECT_EQ(userLanguage(), "en");
}

TEST_F(Language, LastsAsLongAsItsTranslation)
{
    setResourceLanguage("de");
    {
        const Translation translation;
        EXPECT_EQ(open(), "Ö&ffnen...");
    }
    EXPECT_EQ(open(), "&Open...");
}

TEST_F(Language, IsEnglishWhereThereIsNoOther)
{
    setResourceLanguage("fr");
    const Translation translation;
    EXPECT_EQ(open(), "&Open...");
}

TEST_F(Language, HasNoLetterToPressTwiceInAMenu)
{
    EXPECT_EQ(doubledLetters(*window), QStringList());
}

TEST_F(Language, CountsOneObjectInEnglish)
{
    const Translation translation;
    openPlan();
    click(100, 50);
    action(Command::CopyHandles).trigger();
    waitForWork();
    EXPECT_THAT(said().toStdString(), HasSubstr("1 object is in the clipboard."));
}

} // namespace
