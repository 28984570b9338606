#ifndef KESTRANE_BACKEND_REGISTRATION_H
#define KESTRANE_BACKEND_REGISTRATION_H

#include "kestrane/backend/OmbrelExport.h"

#include <memory>

namespace pelorin {
namespace utilities {

/// What somebody holds for as long as something is to stay registered. Whoever registers things
/// derives from Impl and says in its destructor how to take the registration back.
///
/// It can be moved and not copied, so that there is one end to each registration.
///
/// Threads: one at a time for one object; it may die on another thread than it was made on.
///
/// @code
/// int users = 1;
/// struct User : utilities::Registration::Impl
/// {
///     explicit User(int& count) : users(count) {}
///     ~User() override { --users; }
///     int& users;
/// };
/// {
///     const utilities::Registration registration(std::make_unique<User>(users));
///     users; // = 1
/// }
/// users; // = 0
/// @endcode
///
/// @ingroup backend
class OMBREL_EXPORT Registration
{
public:
    /// Its destruction takes the registration back. It must not throw.
    class OMBREL_EXPORT Impl
    {
    public:
        Impl();
        Impl(const Impl&) = delete;
        Impl& operator=(const Impl&) = delete;
        virtual ~Impl();
    };

    /// Holds nothing.
    Registration() noexcept;

    /// Holds what @p impl stands for, or nothing for a null pointer.
    explicit Registration(std::unique_ptr<Impl> impl) noexcept;

    /// Leaves @p other holding nothing.
    Registration(Registration&& other) noexcept;

    /// Leaves @p other holding nothing. What this one has held is taken back last, when it already
    /// holds the new one, so that all that may be used meanwhile.
    Registration& operator=(Registration&& other) noexcept;

    /// Takes back what is held.
    ~Registration();

private:
    std::unique_ptr<Impl> m_impl;
};

} // namespace utilities
} // namespace pelorin

#endif
