#ifndef TESTS_HOSTS_CHARTING_CHARTRUN_H
#define TESTS_HOSTS_CHARTING_CHARTRUN_H

#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

namespace hosts::charting {

/// A folder of its own in which kestrane-chart runs.
class ChartRun
{
public:
    ChartRun() { m_process.setWorkingDirectory(m_directory.path()); }

    QString path(const QString& name) const { return m_directory.filePath(name); }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
    }

    QByteArray read(const QString& name) const
    {
        QFile file(path(name));
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }

    /// Values at 0, 1, 2, ...; "" for a gap.
    void writeColumn(const QString& name, const QStringList& values) const
    {
        write(name, "value,\n" + values.join(QLatin1String(",\n")).toUtf8() + ",\n");
    }

    /// Runs the program to its end.
    /// @return its exit code
    int run(const QStringList& arguments, const QString& program = QStringLiteral(KESTRANE_CHART))
    {
        m_process.start(program, arguments);
        m_process.waitForFinished(60000);
        m_output = QString::fromUtf8(m_process.readAllStandardOutput());
        m_errors = QString::fromUtf8(m_process.readAllStandardError());
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

    QString output() const { return m_output; }
    QString errors() const { return m_errors; }

private:
    QTemporaryDir m_directory;
    QProcess m_process;
    QString m_output;
    QString m_errors;
};

} // namespace hosts::charting

#endif
