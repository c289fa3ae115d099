// The store of all records, loaded while a view shows it.
#pragma once

/// Loads the store and tells what could not be read. One view may open over another that has the store
/// loaded already: it is then read again, and stays for the other one.
class LoadedScores {
public:
    LoadedScores();
    ~LoadedScores();
    LoadedScores(const LoadedScores&) = delete;
    LoadedScores& operator=(const LoadedScores&) = delete;

private:
    bool wasLoaded_;
};
