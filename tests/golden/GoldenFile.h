#pragma once

#include <QStringList>

namespace kesta::test {

// The lines of a text file without their ends; none, and the test fails, when there is no such file.
QStringList LinesOf(const char* path);

// Generated lines against those that were reviewed. With KESTA_WRITE_GOLDEN set, the lines become the file.
class GoldenFile {
public:
    explicit GoldenFile(const char* path) : path_(path) {}

    void add(const QString& line) { lines_ << line; }
    void compare() const; // each difference is a failure of its own

private:
    const char* path_;
    QStringList lines_;
};

} // namespace kesta::test
