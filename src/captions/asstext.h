#ifndef ASSTEXT_H
#define ASSTEXT_H

#include <QString>

// The text of an ASS event as a reader sees it on screen.
class AssText
{
public:
    // Override blocks ({\i1}, {\pos(…)} and comments in braces) removed,
    // \N and \n as line breaks, \h as a non-breaking space.
    static QString readable(const QString& text);
};

#endif // ASSTEXT_H
