#include "chart/chart_model.h"

void ChartModel::loadCells() {
    for (const CellIndex index : allCells) {
        cell(index) = ChartCell{};
        cell(index).lblEarthlyBranches = branchNames[index.index()];
    }
}

void ChartModel::clearCaptions() {
    for (ChartCell& cell : cells) {
        for (const CaptionField& caption : captionFields) {
            if (caption.field != &ChartCell::lblEarthlyBranches) cell.*caption.field = Caption{};
        }
    }
}
