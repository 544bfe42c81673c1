// Where the frame's buttons stand on their strip. All lengths in twips (1/1440 inch).
#pragma once

// The left edges of the four buttons, counted from the right edge of the screen.
struct StripPlaces {
    int cmdSavePicture;
    int cmdShowAll;
    int cmdBack;
    int cmdMdiExit;
    friend constexpr bool operator==(const StripPlaces&, const StripPlaces&) = default;
};

// For a screen and buttons of these widths. The middle gap is 20 twips wider than the others, on purpose.
constexpr StripPlaces stripPlaces(int screenWidth, int buttonWidth) {
    return {screenWidth - (buttonWidth + 4280), screenWidth - (buttonWidth + 2900),
            screenWidth - (buttonWidth + 1500), screenWidth - (buttonWidth + 120)};
}

// The left edge of something that is centred on the screen's width.
constexpr int centredLeft(int screenWidth, int width) { return (screenWidth - width) / 2; }
