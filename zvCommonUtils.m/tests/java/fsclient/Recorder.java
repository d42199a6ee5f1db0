package com.vantorel.ep.products.fsclient;

import java.io.Reader;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.nio.file.StandardOpenOption;
import java.util.Arrays;
import java.util.Collection;
import java.util.Properties;
import java.util.stream.Collectors;

/**
 * Records the calls, one per line, in a file next to the configuration file, from which it reads their return
 * values. {@code secret} is the name of a secret whose value is recorded with each call. {@code throw.METHOD} is
 * the class of an exception to throw, optionally followed by a blank and a message.
 */
final class Recorder {
    private static final Properties SCRIPT = new Properties();
    private static Path calls;

    private Recorder() {}

    static void open(String configPath) throws Exception {
        calls = Paths.get(configPath + ".calls");
        SCRIPT.clear();
        try (Reader reader = Files.newBufferedReader(Paths.get(configPath))) {
            SCRIPT.load(reader);
        }
    }

    static String answer(String key) {
        return SCRIPT.getProperty(key);
    }

    static void record(String method, Object... arguments) throws Exception {
        if (answer("quiet") == null) {
            String line = method + Arrays.stream(arguments).map(Recorder::shown).collect(
                    Collectors.joining(",", "(", ")"));
            String secret = answer("secret");
            line += secret == null ? "\n" : " " + shown(System.getProperty("zv.secret." + secret)) + "\n";
            Files.write(calls, line.getBytes(StandardCharsets.US_ASCII), StandardOpenOption.CREATE,
                    StandardOpenOption.APPEND);
        }
        String exception = answer("throw." + method);
        if (exception != null) {
            String[] words = exception.split(" ", 2);
            Class<?> type = Class.forName(words[0]);
            throw (Exception) (words.length == 1 ? type.getDeclaredConstructor().newInstance()
                                                 : type.getConstructor(String.class).newInstance(words[1]));
        }
    }

    private static String shown(Object argument) {
        if (argument instanceof Collection) {
            return argument.getClass().getName() + ((Collection<?>) argument).stream().map(Recorder::shown).collect(
                    Collectors.joining(" ", "[", "]"));
        }
        return String.valueOf(argument).chars().mapToObj(
                c -> c < 0x7F ? String.valueOf((char) c) : String.format("\\u%04X", c)).collect(Collectors.joining());
    }
}
