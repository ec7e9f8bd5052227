#pragma once

/// How many threads reading or writing a file may use: threadCount, or fewer where the calling thread has a limit.
int fileThreadCount();

/// Limits fileThreadCount() on the thread that makes it, for as long as it exists: for a thread that works on one photograph
/// while others work on theirs. The limit is that of OpenMP, which host and plug-in share, so that it holds for a plug-in that
/// the thread calls. Loops that ask for a team of threadCount are not affected.
class FileThreadLimit
{
public:
    explicit FileThreadLimit(int threads); ///< Less than 1 means 1.
    ~FileThreadLimit();
    FileThreadLimit(const FileThreadLimit &) = delete;
    FileThreadLimit &operator=(const FileThreadLimit &) = delete;

private:
    int before;
};
