#include "kestrane/backend/Registration.h"

namespace pelorin {
namespace utilities {

Registration::Impl::Impl() = default;

Registration::Impl::~Impl() = default;

Registration::Registration() noexcept = default;

Registration::Registration(std::unique_ptr<Impl> impl) noexcept
    : m_impl(std::move(impl))
{}

Registration::Registration(Registration&& other) noexcept = default;

Registration& Registration::operator=(Registration&& other) noexcept = default;

Registration::~Registration() = default;

} // namespace utilities
} // namespace pelorin
