#pragma once

/// Registers the benchmarks of one theme each.
namespace Themes {

void addConversions();
void addNodes();
void addHotLoops();
void addLabels();
void addLoading();
void addStart();
void addChanges();
void addSharing();

} // namespace Themes
