#include "zvCharString.h"
#include "zvCheck.h"
#include "zvString.h"

namespace {

const wchar16 wide[] = {'a', 'b', 'c', 0};
const wchar16 euro = 0x20AC;

bool takes(const zvString& text, const char* expected) { return text == expected; }
bool takesNarrow(const zvCharString& text, char first) { return text.data()[0] == first; }

void construct() {
    const zvString none, copy(none), narrow("abc"), part("abc", 2), units(wide), someUnits(wide, 2);
    const zvString literal = u"abc", someOfLiteral(u"abc", 2), c = 'c', w = euro, u = u'\u20AC', b = true;
    const zvString i = -7, l = 7L, d = 2.5, zero = 0;
    char writable[] = "abc";
    const zvString ofWritable = writable, unitsOnly = const_cast<wchar16*>(wide);
    ZV_CHECK(none.data() == nullptr && copy.empty() && narrow == units && literal == narrow);
    ZV_CHECK(part == "ab" && someUnits == "ab" && someOfLiteral == "ab" && c == "c" && w == u && b == "True");
    ZV_CHECK(i == "-7" && l == "7" && d == "2.500000" && zero == "0");
    ZV_CHECK(ofWritable == "abc" && unitsOnly == "abc" && zvString((const char*)nullptr).empty());
    ZV_CHECK(takes('x', "x") && takes(false, "False") && takes(5, "5") && takes(0.5F, "0.500000"));
}

void assign() {
    zvString s;
    s = "abc";
    s = wide;
    s = u"abc";
    ZV_CHECK(s == "abc");
    s = 'x';
    s = 0;
    ZV_CHECK(s == "0");
    s = 2.5;
    s = false;
    s = u"a longer text";
    s = s.getChars();
    ZV_CHECK(s == "a longer text");
    s = s.data();
    ZV_CHECK(s == "a longer text");
    s = reinterpret_cast<const char16_t*>(s.data());
    ZV_CHECK(s == "a longer text");
    s = reinterpret_cast<const char16_t*>(s.data()) + 2;
    ZV_CHECK(s == "longer text");
    s = {};
    ZV_CHECK(s.empty());
    s.append("a").append('b').append(1);
    s += zvString("c");
    s += euro;
    s += u'd';
    s += 'e';
    s += "f";
    s += u"g";
    ZV_CHECK(s.size() == 9 && s[4] == euro);
}

void join() {
    const zvString s("s");
    ZV_CHECK(s + s == "ss" && s + "t" == "st" && s + 't' == "st" && "t" + s == "ts");
    ZV_CHECK((s + u'\u20AC')[1] == euro && (s + euro)[1] == euro && (u'\u20AC' + s)[0] == euro);
    ZV_CHECK(s + 5 == "s5" && s + 0 == "s0" && 0 + s == "0s" && 2.5 + s == "2.500000s" &&
             s + true == "sTrue");
    ZV_CHECK(u"t" + s == "ts" && s + u"t" == "st");
}

// Where 0 could be a null pointer, and a number a character.
void compare() {
    const zvString zero = "0", five = 5, empty, letter = "a", yes = true;
    ZV_CHECK(zero == 0 && 0 == zero && !(empty == 0) && !(0 == empty) && empty != 0 && 0 != empty);
    ZV_CHECK(!(zero != 0) && zero == 0L && 0L == zero && five == 5 && 5 == five && five != 6 && 6 != five);
    ZV_CHECK(letter == 'a' && 'a' == letter && letter == u'a' && letter != 'b' && yes == true && true == yes);
    ZV_CHECK(letter == "a" && "a" == letter && letter != "b" && "b" != letter && letter == u"a");
    ZV_CHECK(five < 6 && five > 4 && !(zero < 0) && letter < 'b' && empty.equals("") && five.equals(5));
    ZV_CHECK(letter.equalsIgnoreCase('A') && yes.equalsIgnoreCase("TRUE"));
}

void search() {
    zvString s = "a,b,A";
    ZV_CHECK(s.find(',') == 1 && s.find(',', 2) == 3 && s.find("b", 0, 1) == -1 && s.findNoCase('B') == 2);
    ZV_CHECK(s.reverseFind(',') == 3 && s.reverseFind('a', -1, 1) == -1 && s.reverseFindNoCase('a') == 4);
    ZV_CHECK(s.count(',') == 2 && s.count(',', 2, -1) == 1 && s.countNoCase('a') == 2);
    ZV_CHECK(s.replace(',', ';') == 2 && s == "a;b;A" && s.replaceNoCase("a", 1) == 2 && s == "1;b;1");
    ZV_CHECK(s.insert('-', 0) && s.insert(7, 0) && s == "7-1;b;1" && s.substr(1, 2) == "-1");
    s = " ab\t";
    s.trim();
    s.reverse();
    s.toUpper();
    ZV_CHECK(s == "BA" && s.getCharAt(0) == 'B' && !s.empty());
    s.toLower();
    s.reset();
    s.clear();
    ZV_CHECK(s.data() == nullptr && s.getChars() == nullptr);
}

void convert() {
    ZV_CHECK(zvString(true).toBoolean() && zvString::convertUnicodeToInt(7) == 7);
    ZV_CHECK(zvString::convertUnicodeToLong("7x") == 7 && zvString::convertUnicodeToDouble(2.5) == 2.5);
    ZV_CHECK(!zvString::convertUnicodeToBool(true) && zvString::convertUnicodeToBool('2'));
    wchar16* units = nullptr;
    char* chars = nullptr;
    ZV_CHECK(zvString::convertStringToUnicode("abc", 2, units) == 2);
    ZV_CHECK(zvString::convertUnicodeToString(units, 1, chars) == 1 && chars[0] == 'a');
    zvString::releaseUnicode(units);
    zvString::releaseString(chars);
    units = zvString::convertStringToUnicode("abc");
    chars = zvString::convertUnicodeToString(units);
    zvString::releaseUnicode(units);
    zvString::releaseString(chars);
    chars = zvString::convertToLowerCase("A");
    zvString::releaseString(chars);
    chars = zvString::convertToUpperCase("a");
    zvString::releaseString(chars);
    units = zvString::convertToLowerCase(wide);
    zvString::releaseUnicode(units);
    units = zvString::convertToUpperCase(wide);
    zvString::releaseUnicode(units);
    const zvCharString copied = zvString("abc");
    ZV_CHECK(takesNarrow(zvString("abc"), 'a') && copied.data()[2] == 'c' &&
             *zvCharString(zvString()).data() == 0);
}

}  // namespace

int main() {
    construct();
    assign();
    join();
    compare();
    search();
    convert();
    return failures;
}
