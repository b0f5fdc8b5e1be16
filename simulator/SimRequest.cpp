#include "SimRequest.h"

SimRequest SimRequest::parse(const QByteArray& line)
{
    SimRequest request;
    QByteArray text = line;
    while (text.endsWith('\r') || text.endsWith('\n'))
        text.chop(1);
    if (!text.startsWith("norvane ") || text.size() <= 8)
        return request;
    if (text.startsWith("norvane get ")) {
        request.kind = Query;
        request.body = text.mid(12);
    } else if (text.startsWith("norvane set ")) {
        request.kind = Setting;
        request.body = text.mid(12);
    } else {
        request.kind = Command;
        request.body = text.mid(8);
    }
    request.words = split(request.body);
    if (request.words.isEmpty())
        request.kind = Invalid;
    return request;
}

QList<QByteArray> SimRequest::split(const QByteArray& text)
{
    QList<QByteArray> words;
    int i = 0;
    const int n = text.size();
    while (i < n) {
        if (text.at(i) == ' ') {
            ++i;
            continue;
        }
        if (text.at(i) == '"') {
            // No escaping in this language: a description with quotes inside
            // arrives as it stands, so the text simply runs to the end.
            QByteArray rest = text.mid(i);
            while (rest.endsWith(' '))
                rest.chop(1);
            words.append(rest);
            break;
        }
        int end = text.indexOf(' ', i);
        if (end < 0)
            end = n;
        words.append(text.mid(i, end - i));
        i = end;
    }
    return words;
}
