#pragma once

#include <QtTest/QTest>

/// Adds a row of test data: its name, then a value for each column. A string literal becomes a QString.
template <typename... Values>
void row(const char* name, const Values&... values)
{
    (QTest::newRow(name) << ... << values);
}
