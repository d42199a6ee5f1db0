package com.vantorel.ep.products.fsclient;

import java.util.regex.Pattern;
import java.util.regex.PatternSyntaxException;

/**
 * A glob pattern as in a shell: {@code *}, {@code ?} and {@code [...]}, negated as {@code [!...]} or {@code
 * [^...]}. Case-sensitive. Unlike in a shell, {@code *} also matches a leading dot.
 */
final class Glob {
    private final Pattern pattern;

    /**
     * Compiles a pattern.
     *
     * @throws FileServerException when it is empty or has an invalid bracket expression
     */
    Glob(String glob) throws FileServerException {
        if (glob == null || glob.isEmpty()) {
            throw new FileServerException("an empty filter is refused");
        }
        StringBuilder regex = new StringBuilder();
        for (int i = 0; i < glob.length(); i++) {
            char c = glob.charAt(i);
            if (c == '[') {
                int end = closingBracket(glob, i);
                regex.append(bracket(glob.substring(i + 1, end)));
                i = end;
            } else if (c == '*') {
                regex.append(".*");
            } else if (c == '?') {
                regex.append('.');
            } else {
                regex.append(Character.isLetterOrDigit(c) || Character.isSurrogate(c) ? "" : "\\").append(c);
            }
        }
        try {
            pattern = Pattern.compile(regex.toString(), Pattern.DOTALL);
        } catch (PatternSyntaxException e) {
            throw new FileServerException("invalid filter '" + glob + "': " + e.getDescription());
        }
    }

    /** Whether a whole file name matches. */
    boolean matches(String name) {
        return pattern.matcher(name).matches();
    }

    private static int closingBracket(String glob, int start) throws FileServerException {
        int first = start + 1;
        if (glob.startsWith("!", first) || glob.startsWith("^", first)) {
            ++first;
        }
        // A closing bracket in the first position is literal.
        int end = glob.indexOf(']', first + 1);
        if (end < 0) {
            throw new FileServerException("invalid filter '" + glob + "': a bracket is not closed");
        }
        return end;
    }

    private static String bracket(String body) {
        boolean negated = body.startsWith("!") || body.startsWith("^");
        String characters = negated ? body.substring(1) : body;
        return (negated ? "[^" : "[") + characters.replaceAll("[\\\\\\[\\]^&]", "\\\\$0") + "]";
    }
}
