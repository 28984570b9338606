#include "kestrane/backend/Exception.h"

namespace pelorin {
namespace utilities {

Exception::Exception(const QString& message)
    : m_message(message)
    , m_utf8(message.toUtf8())
{}

Exception::Exception(const Exception& other) noexcept = default;

Exception& Exception::operator=(const Exception& other) noexcept = default;

Exception::~Exception() = default;

QString Exception::message() const
{
    return m_message;
}

const char* Exception::what() const noexcept
{
    return m_utf8.constData();
}

} // namespace utilities
} // namespace pelorin
