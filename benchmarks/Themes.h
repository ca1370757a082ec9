#pragma once

/// Each function registers the benchmarks of one theme.
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
