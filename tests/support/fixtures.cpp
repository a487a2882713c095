#include "support/fixtures.h"

namespace tavrel::test {

const std::string_view kGuide =
    "\r\n"
    " 1 "
    ",<title>One</title><note>n1</note><text>Alpha</text><link><linktext>Two</linktext><linkto>002</linkto>"
    "<linktext>Five</linktext><linkto>005</linkto></link>\r\n"
    " 2 ,<title>Two</title><text>Beta</text><link><linktext>One</linktext><linkto>001</linkto></link>\r\n"
    " 5 ,<title>Five</title><text>Gamma</text><link><linktext>Last</linktext><linkto>999</linkto></link>\r\n"
    " 999 ,<title>Last</title><text>Omega</text>\r\n";

const std::string_view kSongs =
    " 1 ,<song>Blue</song><artist>Kim Low</artist>\r\n"
    " 3 ,<playlist>Road</playlist>\r\n"
    "\r\n"
    " 1 ,<title>Start</title><text>See <Part two></text><link><linktext>Part "
    "two</linktext><linkto>002</linkto>"
    "</link><music>Play</music><music>M1</music>\r\n"
    " 2 ,<title>Next</title><text>End</text>\r\n";

const std::string_view kTrio =
    "\r\n"
    " 1 ,<title>A</title><text>one</text>\r\n"
    " 2 ,<title>B</title><text>two</text>\r\n"
    " 3 ,<title>C</title><text>three</text>\r\n";

const std::string_view kFruit =
    "\r\n"
    " 1 ,<title>apple</title><text>Apple pie</text>\r\n"
    " 4 ,<text>none</text>\r\n"
    " 5 ,<text>apple</text>\r\n"
    " 6 ,<text>x APPLE</text>\r\n"
    " 8 ,<text>pine</text>\r\n";

}  // namespace tavrel::test
