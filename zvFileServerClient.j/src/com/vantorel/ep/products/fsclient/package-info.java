/**
 * The file-server client: moves files between this host and a file server, which is a local directory or is reached
 * by FTP or FTPS.
 *
 * <p>A program asks {@link com.vantorel.ep.products.fsclient.FileServerClientFactory} for a
 * {@link com.vantorel.ep.products.fsclient.FileServerClient}; everything else here is not public. The client gives
 * each file to {@code Download} or {@code Upload}, which see to it that it arrives whole or not at all; these speak to
 * the server through a {@code Transport}; {@code Retry} repeats what a broken connection interrupted.
 */
package com.vantorel.ep.products.fsclient;
