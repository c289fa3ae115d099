// The motifs of the card backs. Each fills the panel inside the border, and stays inside the card.
#pragma once

class Drawing;

namespace BackMotifs {

inline constexpr double PanelLeft = 3.2;  ///< the border's inner edge
inline constexpr double PanelTop = 3.2;
inline constexpr double PanelRight = 67.8;
inline constexpr double PanelBottom = 92.8;

void Roses(Drawing& drawing);
void Daisies(Drawing& drawing);
void Tulips(Drawing& drawing);

void Trellis(Drawing& drawing);
void Parterre(Drawing& drawing);

void Lozenges(Drawing& drawing);
void Rosettes(Drawing& drawing);
void Cubes(Drawing& drawing);

void Scrolls(Drawing& drawing);
void SunAndMoon(Drawing& drawing);
void Carnival(Drawing& drawing);

void Tarn(Drawing& drawing);
void AutumnLeaves(Drawing& drawing);
void NightForest(Drawing& drawing);
void Waves(Drawing& drawing);

}  // namespace BackMotifs
