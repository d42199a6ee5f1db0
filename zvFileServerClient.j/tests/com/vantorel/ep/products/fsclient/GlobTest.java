package com.vantorel.ep.products.fsclient;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertThrows;

import org.junit.Test;

public class GlobTest {
    @Test
    public void patternsMatchWholeNames() throws FileServerException {
        String[][] cases = {
                // pattern, names that match, names that do not
                {"*", "a .b a.txt", ""},
                {"*.txt", ".txt a.txt a.b.txt", "a.TXT a.txt.bak txt"},
                {"a?c", "abc a.c a😀c", "ac abbc"},
                {"[a-c]x", "ax cx", "dx -x x"},
                {"[!a-c]x", "dx !x", "ax"},
                {"[^a]x", "bx ^x", "ax"},
                {"[]!]x", "]x !x", "[x"},
                {"[a\\]x", "ax \\x", "]x"},
                {"[[&&a]x", "[x &x ax", "bx"},
                {"a+(b){1}^$|\\d", "a+(b){1}^$|\\d", "aab ab"},
                {"ü*ß", "üß ü–ß", "uß"}};
        for (String[] c : cases) {
            Glob glob = new Glob(c[0]);
            for (String name : c[1].split(" ")) {
                assertEquals(c[0] + " " + name, true, glob.matches(name));
            }
            for (String name : c[2].split(" ")) {
                assertEquals(c[0] + " " + name, false, !name.isEmpty() && glob.matches(name));
            }
        }
        for (String wrong : new String[] {"", null, "[", "[]", "a[!]", "[z-a]"}) {
            assertThrows(wrong, FileServerException.class, () -> new Glob(wrong));
        }
    }
}
