#include "tests/ombrel/NeighbourLibrary.h"

#include "kestrane/backend/InvalidIndexException.h"

using namespace pelorin;

namespace tests::neighbour {

const variables::QuantityManager* quantityManager()
{
    return &utilities::Singleton<variables::QuantityManager>::instance();
}

const utilities::TranslationManager* translationManager()
{
    return &utilities::Singleton<utilities::TranslationManager>::instance();
}

void throwInvalidIndex(double index)
{
    throw utilities::InvalidIndexException("Neighbour::at", index, 0.0, 1e6);
}

} // namespace tests::neighbour
