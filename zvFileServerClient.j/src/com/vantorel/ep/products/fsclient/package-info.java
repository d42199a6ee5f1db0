/**
 * The file-server client: transfers files between this host and a file server, which is a local directory or
 * an FTP or FTPS server.
 *
 * <p>{@link com.vantorel.ep.products.fsclient.FileServerClientFactory} creates a {@link
 * com.vantorel.ep.products.fsclient.FileServerClient}; everything else is internal. The client transfers each
 * file with a {@code Download} or an {@code Upload}, which are atomic; these access the server through a
 * {@code Transport}; {@code Retry} repeats operations after a broken connection.
 */
package com.vantorel.ep.products.fsclient;
