#ifndef TESTS_SUPPORT_QTPRINTERS_H
#define TESTS_SUPPORT_QTPRINTERS_H

#include <QString>
#include <QStringList>

#include <ostream>

// How GoogleTest shows Qt's types when an expectation fails; it looks for these names.

inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* stream)
{
    *stream << "[\"" << texts.join("\", \"").toStdString() << "\"]";
}

#endif
