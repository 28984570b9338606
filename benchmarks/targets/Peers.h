#ifndef BENCHMARKS_TARGETS_PEERS_H
#define BENCHMARKS_TARGETS_PEERS_H

#include "benchmarks/peers/Peers.h"
#include "benchmarks/targets/Contest.h"
#include "benchmarks/targets/Table.h"

#include <functional>
#include <string>
#include <vector>

namespace targets {

using Question = std::function<std::vector<benchmarks::Contestant>(const benchmarks::Peer&)>;

/// Adds a row for each answer of the peers at hand to a question: what @p own takes against it.
/// The target holds against the fastest of them, whatever it leaves out.
void addPeers(Table& table, const std::string& what, const Contestant& own, double target,
              const Question& question);

} // namespace targets

#endif
