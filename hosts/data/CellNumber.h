#ifndef HOSTS_DATA_CELLNUMBER_H
#define HOSTS_DATA_CELLNUMBER_H

#include <string_view>

namespace hosts::data {

/// The number that fills @p cell, spaces around it aside, with @p decimalPoint between its whole
/// part and its decimals. NaN when there is none, or none that is finite.
double cellNumber(std::string_view cell, char decimalPoint);

/// True for a cell with something in it that is neither a number, however large, nor a common way
/// to write that there is none, such as NA.
bool isText(std::string_view cell, char decimalPoint);

} // namespace hosts::data

#endif
