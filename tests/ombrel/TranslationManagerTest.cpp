#include "kestrane/backend/TranslationManager.h"
#include "tests/support/SignalLog.h"

#include <QLocale>

#include <gtest/gtest.h>

TEST(TranslationManagerTest, TellsEveryChangeOnceWithANameThatQLocaleTakes)
{
    pelorin::utilities::TranslationManager manager;
    EXPECT_EQ(QLocale(manager.locale()).language(), QLocale::system().language());
    manager.setLocale("de_DE");
    tests::SignalLog log(&manager);
    for (const char* name : {"de_DE", "fr", "fr", "no such language", "", "pt_BR"})
        manager.setLocale(name);
    EXPECT_EQ(log.take(), "localeChanged(fr) localeChanged(C) localeChanged(pt_BR)");
    EXPECT_EQ(manager.locale(), "pt_BR");
}
