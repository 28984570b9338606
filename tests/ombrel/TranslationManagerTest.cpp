#include "kestrane/backend/TranslationManager.h"
#include "tests/support/SignalLog.h"

#include <QLocale>

#include <gtest/gtest.h>

using pelorin::utilities::TranslationManager;

TEST(TranslationManagerTest, StartsWithALocaleThatQLocaleTakes)
{
    const TranslationManager manager;
    EXPECT_EQ(QLocale(manager.locale()).language(), QLocale::system().language());
}

TEST(TranslationManagerTest, TellsEveryChangeOnceWithANameThatQLocaleTakes)
{
    TranslationManager manager;
    manager.setLocale("de_DE");
    tests::SignalLog log(&manager);

    const struct
    {
        const char* given;
        const char* kept;
        QStringList heard;
    } cases[] = {
        {"de_DE", "de_DE", {}}, {"fr", "fr", {"localeChanged(fr)"}},
        {"fr", "fr", {}},       {"no such language", "C", {"localeChanged(C)"}},
        {"", "C", {}},          {"pt_BR", "pt_BR", {"localeChanged(pt_BR)"}},
    };
    for (const auto& [given, kept, heard] : cases) {
        manager.setLocale(given);
        EXPECT_EQ(manager.locale(), kept) << given;
        EXPECT_EQ(log.take(), heard) << given;
    }
}
