#pragma once

#include <QtTest/QTest>

#include "ExpectedMessages.h"
#include "LogCapture.h"

/// Adds the table of queries for decimal places, which core and facade answer alike.
void addDecimalPlacesRows();

/// Runs the current row of addDecimalPlacesRows() with a core or a facade that has loaded the test documents.
template <typename Manager>
void checkDecimalPlaces(const Manager& manager)
{
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    unsigned int places = 77; // stays unchanged when the unit is not found
    LogCapture log;

    QTEST(manager.getDecimalPlacesForUnit(unitType, unit, places), "found");
    QTEST(places, "places");
    QTEST(takeMessageTexts(log), "messages");
}
