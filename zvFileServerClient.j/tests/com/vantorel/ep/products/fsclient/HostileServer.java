package com.vantorel.ep.products.fsclient;

import java.io.BufferedReader;
import java.io.IOException;
import java.io.InputStream;
import java.io.InputStreamReader;
import java.io.OutputStream;
import java.net.InetAddress;
import java.net.InetSocketAddress;
import java.net.ServerSocket;
import java.net.Socket;
import java.nio.charset.Charset;
import java.nio.charset.StandardCharsets;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Collections;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

/**
 * An FTP server on loopback that answers whatever a test wants, which no real server would. It has one file of any
 * name, and takes every account.
 */
final class HostileServer implements AutoCloseable {
    private static final int PAUSE = 20;

    final int port;
    final List<String> commands = Collections.synchronizedList(new ArrayList<>());
    Charset encoding = StandardCharsets.UTF_8;
    private final ServerSocket control = new ServerSocket(0, 50, InetAddress.getByName("127.0.0.1"));
    private final ServerSocket data = new ServerSocket();
    private final Map<String, String> answers = new HashMap<>();
    private String password = "";

    /**
     * @param answers by the commands: <code>COMMAND=text</code>. "welcome" is the first one, "data" the content of
     *     listings and files. {@code %PASS%} becomes the password, {@code %END%} the end of the connection. One that ends in "..." is repeated for ever, a
     *     byte every 20 ms; STOR=... takes a file so slowly
     */
    HostileServer(String... answers) throws IOException {
        this(0, answers);
    }

    /** With this port for data connections. */
    HostileServer(int dataPort, String... answers) throws IOException {
        data.setReceiveBufferSize(1 << 12);
        data.bind(new InetSocketAddress("127.0.0.1", dataPort));
        String pasv = "227 (127,0,0,1," + data.getLocalPort() / 256 + "," + data.getLocalPort() % 256 + ")";
        for (String answer : new String[] {"welcome=220 ready", "USER=331 who", "PASS=230 in", "SYST=215 UNIX",
                "PWD=257 \"/\"", "TYPE=200 set", "CWD=250 there", "SIZE=213 3", "QUIT=221 bye", "data=abc",
                "PASV=" + pasv}) {
            put(answer);
        }
        for (String answer : answers) {
            put(answer);
        }
        port = control.getLocalPort();
        start(this::accept);
    }

    /** The port of data connections, on this host. */
    int dataPort() {
        return data.getLocalPort();
    }

    /** A client of this server that does not try again. */
    FileServerClient client(Path folder, String... lines) throws IOException {
        return TestServer.connect(folder, "ftp://127.0.0.1:" + port, lines);
    }

    @Override
    public void close() throws IOException {
        control.close();
        data.close();
    }

    private void put(String answer) {
        int separator = answer.indexOf('=');
        answers.put(answer.substring(0, separator), answer.substring(separator + 1));
    }

    private static void start(Job job) {
        Thread thread = new Thread(() -> {
            try {
                job.run();
            } catch (IOException e) {
                // The client is gone, or the test over.
            }
        });
        thread.setDaemon(true);
        thread.start();
    }

    private interface Job {
        void run() throws IOException;
    }

    private void accept() throws IOException {
        for (;;) {
            Socket socket = control.accept();
            start(() -> serve(socket));
        }
    }

    private void serve(Socket socket) throws IOException {
        try (socket) {
            OutputStream out = socket.getOutputStream();
            BufferedReader in = new BufferedReader(new InputStreamReader(socket.getInputStream(), encoding));
            say(out, answers.get("welcome") + "\r\n");
            for (String line = in.readLine(); line != null; line = in.readLine()) {
                commands.add(line);
                String command = line.split(" ", 2)[0];
                password = command.equals("PASS") ? line.substring(5) : password;
                if (answers.containsKey(command)) {
                    say(out, answers.get(command) + "\r\n");
                } else if (command.matches("LIST|NLST|RETR|STOR")) {
                    transfer(command, out);
                } else {
                    say(out, "502 no\r\n");
                }
            }
        }
    }

    private void transfer(String command, OutputStream out) throws IOException {
        say(out, "150 now\r\n");
        try (Socket socket = data.accept()) {
            if (command.equals("STOR")) {
                InputStream in = socket.getInputStream();
                byte[] some = new byte[1 << 10];
                while (in.read(some) >= 0) {
                    pause();
                }
            } else {
                say(socket.getOutputStream(), answers.get("data"));
            }
        }
        say(out, "226 done\r\n");
    }

    private void say(OutputStream out, String text) throws IOException {
        String answer = text.replace("%PASS%", password).replace("%END%", "");
        if (!answer.trim().endsWith("...")) {
            out.write(answer.getBytes(encoding));
            if (text.contains("%END%")) {
                out.close();
            }
            return;
        }
        byte[] bytes = answer.trim().replace("...", "\r\n").getBytes(encoding);
        for (int i = 0;; i = (i + 1) % bytes.length) {
            out.write(bytes[i]);
            pause();
        }
    }

    private static void pause() {
        try {
            Thread.sleep(PAUSE);
        } catch (InterruptedException e) {
            Thread.currentThread().interrupt();
        }
    }
}
