#ifndef KESTRANE_BACKEND_EXCEPTION_H
#define KESTRANE_BACKEND_EXCEPTION_H

#include "kestrane/backend/OmbrelExport.h"

#include <QByteArray>
#include <QString>

#include <exception>

namespace pelorin {
namespace utilities {

/// An error with a message for people. Thrown and copied by value, caught by reference; its type
/// is one and the same in every library of a process.
///
/// @code
/// try {
///     throw utilities::Exception("The probe is not connected");
/// } catch (const std::exception& error) {
///     error.what(); // = The probe is not connected
/// }
/// @endcode
///
/// @ingroup backend
class OMBREL_EXPORT Exception : public std::exception
{
public:
    /// @param message the finished text; nothing is added to it
    explicit Exception(const QString& message);

    Exception(const Exception& other) noexcept;
    Exception& operator=(const Exception& other) noexcept;
    ~Exception() override;

    /// The text that the exception was made with.
    QString message() const;

    /// The same text in UTF-8, valid as long as this exception.
    const char* what() const noexcept override;

private:
    QString m_message;
    QByteArray m_utf8;
};

} // namespace utilities
} // namespace pelorin

#endif
