// The store of all records, loaded while a view shows it.
#pragma once

/// Loads the store and tells what could not be read. One view may open over another that has the store
/// loaded already: it is then read again, and stays for the other one.
class LoadedScores {
public:
    /// A view that belongs to another one may show what that has loaded.
    enum class Reading { Always, UnlessLoaded };

    explicit LoadedScores(Reading reading = Reading::Always);
    ~LoadedScores();
    LoadedScores(const LoadedScores&) = delete;
    LoadedScores& operator=(const LoadedScores&) = delete;

    /// Reads the store anew, and tells what could not be read.
    static void Load();

private:
    bool wasLoaded_;
};
