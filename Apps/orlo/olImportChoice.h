#pragma once

struct olImportJob;

/// What a person chooses for an import beside what the preferences say; the next import begins with it.
struct olImportChoice {
    /// What was open stays.
    bool addsToScene = false;

    /// How the numbers of formats are meant that do not say it.
    double unit = 1.0;
    bool isYUp = false;

    [[nodiscard]] static olImportChoice remembered();
    void remember() const;

    void applyTo(olImportJob &job) const;
};
