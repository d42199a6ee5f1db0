package com.vantorel.ep.products.fsclient;

import java.nio.charset.Charset;
import java.util.ArrayList;
import java.util.List;

/** Masks the secrets of the configurations that were read in this process, in whatever is told. */
final class Masking {
    static final String MASK = "********";
    private static final int SHORTEST_IN_MESSAGE = 4;

    /** Longer ones first, since a shorter one may be a part of them. */
    private static final List<String> SECRETS = new ArrayList<>();

    private Masking() {}

    /** Masks a secret from now on: as it is, and as the encoding of FTP commands, in which it travels, makes it. */
    static synchronized void add(String secret, Charset encoding) {
        String travelled = new String(secret.getBytes(encoding), encoding);
        for (String form : new String[] {secret, travelled, secret.strip(), travelled.strip()}) {
            if (!form.isBlank() && !SECRETS.contains(form)) {
                int place = 0;
                while (place < SECRETS.size() && SECRETS.get(place).length() > form.length()) {
                    ++place;
                }
                SECRETS.add(place, form);
            }
        }
    }

    /** What a server says, without them. */
    static String masked(String text) {
        return masked(text, 1);
    }

    /** A message, into which the names of a listing bring them. Shorter ones would mask its own words. */
    static String maskedMessage(String text) {
        return masked(text, SHORTEST_IN_MESSAGE);
    }

    private static synchronized String masked(String text, int shortest) {
        String masked = text;
        for (String secret : SECRETS) {
            masked = secret.length() < shortest ? masked : masked.replace(secret, MASK);
        }
        return masked;
    }
}
