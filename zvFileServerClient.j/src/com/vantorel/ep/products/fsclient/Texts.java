package com.vantorel.ep.products.fsclient;

/** Questions about texts, answered without streams and regular expressions: see {@link FileServerClient}. */
final class Texts {
    private Texts() {}

    static boolean hasControl(String text) {
        for (int i = 0; i < text.length(); ++i) {
            if (Character.isISOControl(text.charAt(i))) {
                return true;
            }
        }
        return false;
    }

    /** Whether a text is made of some of the characters alone; an empty one is. */
    static boolean isMadeOf(String characters, String text) {
        for (int i = 0; i < text.length(); ++i) {
            if (characters.indexOf(text.charAt(i)) < 0) {
                return false;
            }
        }
        return true;
    }
}
