# Most of what a source of the library takes to compile are the headers of others.
cmake_language(DEFER CALL target_precompile_headers kestrane PRIVATE
  <QtCore> <boost/function.hpp> <boost/make_shared.hpp> <algorithm> <cmath> <functional> <vector>)
