#pragma once

#include <QByteArray>

// Property lists built byte by byte (no libplist: its own tree of such a list would be freed by
// recursion): a top-level dictionary whose "mainDic" holds arrays nested `levels` deep, the
// innermost one empty.
QByteArray xmlNestedArrays(int levels);
QByteArray binaryNestedArrays(int levels);
// A binary list whose "mainDic" holds an array of `width` references to one array, which holds
// `width` references to the next, `levels` deep: small, but a tree of width^levels arrays.
QByteArray binarySharedArrays(int levels, int width);
