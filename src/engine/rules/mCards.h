// The steps of the deal, and clearing the table.
#pragma once

#include <optional>

namespace mCards {

/// Hides all cards and marks and zeroes the cards' values and places.
void HideAll();

void DealGoal();
void DealMarkers();
void DealStock();
void DealWaste();
void DealRes();
/// The tableau, by the game's deal pattern.
void DealHome();
/// After the deal Kings sink to the bottom of their tableau piles.
void SinkKings();

void SetGoalMarker(int Index, int Pile, int Picture);
void SetResMarker(int Index, int Pile);
void SetHomeMarker(int Index, int Pile, std::optional<int> Picture = std::nullopt);
void SetWasteMarker(int Index, int Pile);
void SetStockMarker(int StockNum);

}  // namespace mCards
