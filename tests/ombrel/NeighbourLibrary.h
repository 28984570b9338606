#ifndef TESTS_OMBREL_NEIGHBOURLIBRARY_H
#define TESTS_OMBREL_NEIGHBOURLIBRARY_H

#include "kestrane/backend/QuantityManager.h"
#include "kestrane/backend/TranslationManager.h"

/// What another library of the same process sees of Ombrel.
namespace tests::neighbour {

Q_DECL_EXPORT const pelorin::variables::QuantityManager* quantityManager();
Q_DECL_EXPORT const pelorin::utilities::TranslationManager* translationManager();
Q_DECL_EXPORT void throwInvalidIndex(double index);

} // namespace tests::neighbour

#endif
