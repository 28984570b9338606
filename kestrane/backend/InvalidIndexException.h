#ifndef KESTRANE_BACKEND_INVALIDINDEXEXCEPTION_H
#define KESTRANE_BACKEND_INVALIDINDEXEXCEPTION_H

#include "kestrane/backend/Exception.h"

namespace pelorin {
namespace utilities {

/// An index lies outside the range that a place accepts.
///
/// @code
/// auto samples = boost::make_shared<backend::SampleVector>(3, 1.0);
/// algo::SplineAlgorithm<backend::SampleIterator> spline(backend::PlotSegment(samples).begin, 3);
/// bool isOutside = false;
/// try {
///     spline[7.0];
/// } catch (const utilities::InvalidIndexException&) {
///     isOutside = true;
/// }
/// isOutside; // = 1
/// @endcode
///
/// @ingroup backend
class OMBREL_EXPORT InvalidIndexException : public Exception
{
public:
    /// The message names @p upper first. Compiled into the library that throws.
    /// @param place what was asked, such as "Class::operation"; it may not contain "%2" to "%4"
    /// @param index the index as it was given
    /// @param lower the bound below
    /// @param upper the bound above
    InvalidIndexException(const QString& place, double index, double lower, double upper)
        : Exception(QString::fromLatin1("%1 (given index: %2, legal values are between %3 and %4)")
                        .arg(place)
                        .arg(index, 0, 'g', -1, QLatin1Char(' '))
                        .arg(upper, 0, 'g', -1, QLatin1Char(' '))
                        .arg(lower, 0, 'g', -1, QLatin1Char(' ')))
    {}

    InvalidIndexException(const InvalidIndexException& other) noexcept;
    InvalidIndexException& operator=(const InvalidIndexException& other) noexcept;
    ~InvalidIndexException() override;
};

} // namespace utilities
} // namespace pelorin

#endif
